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
    std::set<uint16_t> ports;       // on which everything is taken for SIP
    std::vector<const char *> files;
};

// Exit statuses.
constexpr int exitGood = 0, exitFound = 1, exitTrouble = 2;

// What the arguments ask for. Nothing if there is no more to do than to exit with the status, because help was printed or
// the arguments were wrong, which is reported.
std::optional<Options> readOptions( int argc, char **argv, int &status );

} // namespace tools
