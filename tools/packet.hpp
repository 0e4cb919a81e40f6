// One packet of a capture: from the frame of the link to the payload of IP (RFC 791, RFC 8200).
#pragma once

#include <optional>
#include <string_view>

#include "place.hpp"

namespace tools
{

// The number at this place, in network order; the bytes are there.
inline uint32_t number16( std::string_view bytes, std::size_t at )
{
    return static_cast<uint32_t>( static_cast<unsigned char>( bytes[at] ) << 8
                                  | static_cast<unsigned char>( bytes[at + 1] ) );
}
inline uint32_t number32( std::string_view bytes, std::size_t at )
{
    return number16( bytes, at ) << 16 | number16( bytes, at + 2 );
}

struct Packet
{
    static constexpr unsigned tcp = 6, udp = 17;

    Endpoint source, destination; // without ports
    unsigned protocol = 0;
    std::string_view payload; // what was captured of it
    std::size_t missing = 0;  // how many bytes more it had

    // Of a fragment: which datagram it belongs to, where in it, and whether it is not the last one.
    bool isFragment = false, more = false;
    uint32_t id = 0;
    std::size_t offset = 0;
};

// Whether frames of this link, a DLT_ of libpcap, can be read.
bool isLinkKnown( int link );

// The packet in a frame, or nothing if there is none or its headers are not whole.
std::optional<Packet> readPacket( int link, std::string_view frame );

} // namespace tools
