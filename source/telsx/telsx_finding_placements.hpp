// Which headers messages may have, and which they must have.
#pragma once

#include "telsx/telsx_header_table.hpp"

namespace telsx
{

// A line of the table in RFC 3261, 20: the header may be in responses with these status codes, and in requests if they
// begin with 0. For the six methods, "m" says that it must be there, "-" that it must not, anything else that it may.
struct HeaderPlacement
{
    std::string_view name;
    int64_t leastStatus, mostStatus;
    std::string_view methods;
};
inline constexpr std::string_view placementMethods[] = { "ACK",    "BYE",     "CANCEL",
                                                         "INVITE", "OPTIONS", "REGISTER" };

// clang-format off
inline constexpr HeaderPlacement headerPlacements[] = {
    { "Accept", 0, 0, "-o-o*o" },
    { "Accept", 200, 299, "---o*o" },
    { "Accept", 415, 415, "-c-ccc" },
    { "Accept-Encoding", 0, 0, "-o-ooo" },
    { "Accept-Encoding", 200, 299, "---o*o" },
    { "Accept-Encoding", 415, 415, "-c-ccc" },
    { "Accept-Language", 0, 0, "-o-ooo" },
    { "Accept-Language", 200, 299, "---o*o" },
    { "Accept-Language", 415, 415, "-c-ccc" },
    { "Alert-Info", 0, 0, "---o--" },
    { "Alert-Info", 180, 180, "---o--" },
    { "Allow", 0, 0, "-o-ooo" },
    { "Allow", 100, 999, "-o-ooo" },
    { "Allow", 405, 405, "-m-mmm" },
    { "Authentication-Info", 200, 299, "-o-ooo" },
    { "Authorization", 0, 0, "oooooo" },
    { "Call-Id", 0, 999, "mmmmmm" },
    { "Call-Info", 0, 999, "---ooo" },
    { "Contact", 0, 0, "o--moo" },
    { "Contact", 100, 199, "---o--" },
    { "Contact", 200, 299, "---moo" },
    { "Contact", 300, 399, "-o-ooo" },
    { "Contact", 485, 485, "-o-ooo" },
    { "Content-Disposition", 0, 999, "oo-ooo" },
    { "Content-Encoding", 0, 999, "oo-ooo" },
    { "Content-Language", 0, 999, "oo-ooo" },
    { "Content-Length", 0, 999, "tttttt" },
    { "Content-Type", 0, 999, "**-***" },
    { "Cseq", 0, 999, "mmmmmm" },
    { "Date", 0, 999, "oooooo" },
    { "Error-Info", 300, 699, "-ooooo" },
    { "Expires", 0, 999, "---o-o" },
    { "From", 0, 999, "mmmmmm" },
    { "In-Reply-To", 0, 0, "---o--" },
    { "Max-Forwards", 0, 0, "mmmmmm" },
    { "Mime-Version", 0, 999, "oo-ooo" },
    { "Min-Expires", 423, 423, "-----m" },
    { "Organization", 0, 999, "---ooo" },
    { "Priority", 0, 0, "---o--" },
    { "Proxy-Authenticate", 407, 407, "-m-mmm" },
    { "Proxy-Authenticate", 401, 401, "-ooooo" },
    { "Proxy-Authorization", 0, 0, "oo-ooo" },
    { "Proxy-Require", 0, 0, "-o-ooo" },
    { "Record-Route", 0, 0, "ooooo-" },
    { "Record-Route", 180, 189, "-oooo-" },
    { "Record-Route", 200, 299, "-oooo-" },
    { "Reply-To", 0, 999, "---o--" },
    { "Require", 0, 999, "-c-ccc" },
    { "Retry-After", 404, 404, "-ooooo" },
    { "Retry-After", 413, 413, "-ooooo" },
    { "Retry-After", 480, 480, "-ooooo" },
    { "Retry-After", 486, 486, "-ooooo" },
    { "Retry-After", 500, 500, "-ooooo" },
    { "Retry-After", 503, 503, "-ooooo" },
    { "Retry-After", 600, 600, "-ooooo" },
    { "Retry-After", 603, 603, "-ooooo" },
    { "Route", 0, 0, "cccccc" },
    { "Server", 100, 999, "-ooooo" },
    { "Subject", 0, 0, "---o--" },
    { "Supported", 0, 0, "-oo*oo" },
    { "Supported", 200, 299, "-oo**o" },
    { "Timestamp", 0, 999, "oooooo" },
    { "To", 0, 999, "mmmmmm" },
    { "Unsupported", 420, 420, "-m-mmm" },
    { "User-Agent", 0, 999, "oooooo" },
    { "Via", 0, 999, "mmmmmm" },
    { "Warning", 100, 999, "-ooooo" },
    { "Www-Authenticate", 401, 401, "-m-mmm" },
    { "Www-Authenticate", 407, 407, "-o-ooo" },
};
// clang-format on

// What requests of other methods must have, by the RFCs of these.
struct NeededHeader
{
    std::string_view method, name, reference;
};
inline constexpr NeededHeader neededHeaders[] = {
    { "NOTIFY", "Event", "RFC 6665, 8.2.1" },      { "NOTIFY", "Subscription-State", "RFC 6665, 4.1.3" },
    { "PRACK", "Rack", "RFC 3262, 7.2" },          { "PUBLISH", "Event", "RFC 3903, 4" },
    { "REFER", "Contact", "RFC 3515, 2.2" },       { "REFER", "Refer-To", "RFC 3515, 2.4.1" },
    { "SUBSCRIBE", "Contact", "RFC 6665, 4.1.2" }, { "SUBSCRIBE", "Event", "RFC 6665, 4.1.2" },
};

// Headers that may be there more than once although their values are not a list.
inline constexpr std::string_view repeatableHeaders[] = { "Authorization", "Proxy-Authenticate",
                                                          "Proxy-Authorization", "Remote-Party-Id",
                                                          "Www-Authenticate" };

// Headers without a type that may not.
inline constexpr std::string_view singleHeaders[] = { "Content-Length", "Content-Type", "Mime-Version" };

} // namespace telsx
