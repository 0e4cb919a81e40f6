// What is wrong with a message.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "common/message.hpp"
#include "framing.hpp"

namespace tools
{

struct Finding
{
    int64_t severity;             // TELSX_FINDING_SEVERITY_...
    int64_t offset, line, column; // in the message
    std::string header;           // or empty
    std::string code, text, reference;
};

// "error", "warning" or "remark".
const char *severityName( int64_t severity );

// The findings of the library in their order, and what only a stream can have, without those of silenced codes.
std::vector<Finding> findIn( const Cut &message, const std::set<std::string> &silenced );

// The same for one of many messages, with nothing but severity and code.
std::vector<Finding> findIn( const Cut &message, const std::set<std::string> &silenced,
                             const Owned<TELSX_FINDER> &finder );

// Whether one of them is more than a remark.
bool areBad( const std::vector<Finding> &findings );

} // namespace tools
