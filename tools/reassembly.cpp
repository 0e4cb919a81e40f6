#include "reassembly.hpp"

#include <utility>

namespace tools
{

Reassembly::Reassembly( std::set<uint16_t> sipPorts, Receive receiver )
    : ports( std::move( sipPorts ) ), receive( std::move( receiver ) ),
      streams( [this]( const Cut &cut, const Endpoint &source, const Endpoint &destination )
               { give( cut, "TCP", source, destination ); },
               [this]( const Endpoint &source, const Endpoint &destination )
               { return isSip( source, destination ); } )
{
}

void Reassembly::add( int link, std::string_view frame, const Place &place )
{
    now = place;
    std::optional<Packet> packet = readPacket( link, frame );
    if ( !packet )
        return;
    if ( packet->isFragment )
    {
        auto whole = fragments.add( *packet, place.seconds );
        if ( !whole )
            return;
        packet->payload = *whole;
    }
    if ( packet->protocol == Packet::tcp )
        streams.add( *packet );
    else if ( packet->protocol == Packet::udp )
        addDatagram( *packet );
}

void Reassembly::addDatagram( const Packet &packet )
{
    std::string_view bytes = packet.payload;
    if ( bytes.size() < 8 )
        return;
    Endpoint source = packet.source, destination = packet.destination;
    source.port = static_cast<uint16_t>( number16( bytes, 0 ) );
    destination.port = static_cast<uint16_t>( number16( bytes, 2 ) );
    std::size_t length = number16( bytes, 4 );
    std::string_view data = bytes.substr( 8, length < 8 ? bytes.size() : length - 8 );
    if ( isKeepAlive( data ) )
        return;
    if ( startOf( data ) != Start::Yes && !isSip( source, destination ) )
        return;
    if ( packet.missing )
        ++cutPackets;
    else
        give( { data }, "UDP", source, destination );
}

bool Reassembly::isSip( const Endpoint &source, const Endpoint &destination ) const
{
    return ports.count( source.port ) || ports.count( destination.port );
}

void Reassembly::give( const Cut &cut, const char *transport, const Endpoint &source,
                       const Endpoint &destination )
{
    Place place = now;
    place.transport = transport;
    place.source = source;
    place.destination = destination;
    receive( cut, place );
}

void Reassembly::finish() { streams.finish(); }

Losses Reassembly::losses() const
{
    return { cutPackets, fragments.lost(), streams.holes(), streams.unfinished(), streams.tooLong() };
}

} // namespace tools
