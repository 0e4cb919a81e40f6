#include "packet.hpp"

#include <algorithm>

#include <pcap/dlt.h>

namespace tools
{

namespace
{

constexpr uint32_t etherV4 = 0x0800, etherV6 = 0x86DD;

// What stands before the packet in frames of a link: so many bytes, and where in them the type of the packet is.
struct Link
{
    int number;
    std::size_t header;
    std::size_t type; // 0 where the packet itself tells
};
constexpr Link links[] = {
    { DLT_EN10MB, 14, 12 }, { DLT_LINUX_SLL, 16, 14 }, { DLT_LINUX_SLL2, 20, 0 }, { DLT_NULL, 4, 0 },
    { DLT_LOOP, 4, 0 },     { DLT_RAW, 0, 0 },         { DLT_IPV4, 0, 0 },        { DLT_IPV6, 0, 0 },
};

uint32_t number8( std::string_view bytes, std::size_t at ) { return static_cast<unsigned char>( bytes[at] ); }

Endpoint addressAt( std::string_view bytes, std::size_t at, bool isV6 )
{
    Endpoint result;
    result.isV6 = isV6;
    std::copy_n( bytes.begin() + static_cast<std::ptrdiff_t>( at ), isV6 ? 16 : 4, result.address.begin() );
    return result;
}

// Sets the payload: it has this length, of which fewer bytes may be there.
void setPayload( Packet &packet, std::string_view bytes, std::size_t length )
{
    packet.payload = bytes.substr( 0, length );
    packet.missing = length - packet.payload.size();
}

std::optional<Packet> readV4( std::string_view bytes )
{
    if ( bytes.size() < 20 )
        return std::nullopt;
    std::size_t header = std::size_t( number8( bytes, 0 ) & 0xF ) * 4, total = number16( bytes, 2 );
    if ( total == 0 ) // the network card was to fill it in
        total = bytes.size();
    if ( header < 20 || total < header || bytes.size() < header )
        return std::nullopt;
    Packet packet;
    packet.source = addressAt( bytes, 12, false );
    packet.destination = addressAt( bytes, 16, false );
    packet.protocol = number8( bytes, 9 );
    packet.id = number16( bytes, 4 );
    packet.more = number16( bytes, 6 ) & 0x2000;
    packet.offset = std::size_t( number16( bytes, 6 ) & 0x1FFF ) * 8;
    packet.isFragment = packet.more || packet.offset;
    setPayload( packet, bytes.substr( header ), total - header );
    return packet;
}

std::optional<Packet> readV6( std::string_view bytes )
{
    if ( bytes.size() < 40 )
        return std::nullopt;
    constexpr unsigned hopByHop = 0, routing = 43, fragment = 44, authentication = 51, options = 60;
    Packet packet;
    packet.source = addressAt( bytes, 8, true );
    packet.destination = addressAt( bytes, 24, true );
    packet.protocol = number8( bytes, 6 );
    std::size_t length = number16( bytes, 4 );
    bytes.remove_prefix( 40 );
    if ( length == 0 )
        length = bytes.size();
    for ( ;; )
    {
        unsigned extension = packet.protocol;
        if ( extension != hopByHop && extension != routing && extension != fragment
             && extension != authentication && extension != options )
            break;
        // What follows a fragment's header is a part of the datagram.
        if ( packet.isFragment )
            break;
        if ( bytes.size() < 8 )
            return std::nullopt;
        packet.protocol = number8( bytes, 0 );
        std::size_t size = std::size_t( number8( bytes, 1 ) + 1 ) * 8;
        if ( extension == authentication )
            size = std::size_t( number8( bytes, 1 ) + 2 ) * 4;
        if ( extension == fragment )
        {
            size = 8;
            packet.offset = number16( bytes, 2 ) & 0xFFF8;
            packet.more = number16( bytes, 2 ) & 1;
            packet.isFragment = packet.more || packet.offset;
            packet.id = number32( bytes, 4 );
        }
        if ( size > bytes.size() || size > length )
            return std::nullopt;
        bytes.remove_prefix( size );
        length -= size;
    }
    setPayload( packet, bytes, length );
    return packet;
}

// By the version that every IP packet begins with.
std::optional<Packet> readIp( std::string_view bytes )
{
    unsigned version = bytes.empty() ? 0 : number8( bytes, 0 ) >> 4;
    return version == 4 ? readV4( bytes ) : version == 6 ? readV6( bytes ) : std::nullopt;
}

} // namespace

bool isLinkKnown( int link )
{
    return std::any_of( std::begin( links ), std::end( links ),
                        [link]( const Link &known ) { return known.number == link; } );
}

std::optional<Packet> readPacket( int link, std::string_view frame )
{
    const Link *known = std::find_if( std::begin( links ), std::end( links ),
                                      [link]( const Link &each ) { return each.number == link; } );
    if ( known == std::end( links ) || frame.size() < known->header )
        return std::nullopt;
    std::string_view rest = frame.substr( known->header );
    if ( known->type == 0 )
        return readIp( rest );
    uint32_t type = number16( frame, known->type );
    constexpr uint32_t vlan = 0x8100, serviceVlan = 0x88A8, oldServiceVlan = 0x9100;
    while ( ( type == vlan || type == serviceVlan || type == oldServiceVlan ) && rest.size() >= 4 )
    {
        type = number16( rest, 2 );
        rest.remove_prefix( 4 );
    }
    return type == etherV4 || type == etherV6 ? readIp( rest ) : std::nullopt;
}

} // namespace tools
