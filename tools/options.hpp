// The command line.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tools
{

struct Options
{
    enum class Command
    {
        Check,
        Decode
    };
    Command command = Command::Check;
    bool json = false;
    bool summary = false;
    std::set<std::string> silenced; // codes of findings
    std::set<uint16_t> ports;       // on which all is taken for SIP
    std::vector<const char *> files;
};

// Exit statuses.
constexpr int exitGood = 0, exitFound = 1, exitTrouble = 2;

// What the arguments ask for, or nothing if there is nothing to do but to exit with the status: help was printed, or
// what is wrong with the arguments.
std::optional<Options> readOptions( int argc, char **argv, int &status );

} // namespace tools
