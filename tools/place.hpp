// Where a message was found.
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace tools
{

// An IP address and a port. An IPv4 address stands in the first four bytes.
struct Endpoint
{
    std::array<unsigned char, 16> address{};
    bool isV6 = false;
    uint16_t port = 0;

    auto operator<=>( const Endpoint & ) const = default;
};

struct Place
{
    std::string_view file;

    // Where the message begins in a file of text, which has no packets.
    int64_t offset = 0;
    int64_t line = 1, column = 1; // from 1, in characters

    // In a capture: the packet that completes the message, from 1.
    int64_t packet = 0;
    int64_t seconds = 0, microseconds = 0; // since 1970
    const char *transport = "";
    Endpoint source, destination;

    bool isCaptured() const { return packet != 0; }
};

// Such as 192.0.2.1:5060 or [2001:db8::1]:5060.
std::string toString( const Endpoint &endpoint );

// The time of the packet in UTC, such as 2026-11-23T14:20:21.123456Z.
std::string timeOf( const Place &place );

} // namespace tools
