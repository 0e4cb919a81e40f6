#include "fragments.hpp"

namespace tools
{

std::optional<std::string_view> Fragments::add( const Packet &packet, int64_t seconds )
{
    while ( !ages.empty() && seconds - datagrams.find( ages.front() )->second.seconds > maxAge )
        giveUp( datagrams.find( ages.front() ) );
    Key key{ packet.source, packet.destination, packet.protocol, packet.id };
    auto [at, isNew] = datagrams.try_emplace( key );
    Datagram &datagram = at->second;
    if ( isNew )
    {
        datagram.age = ages.insert( ages.end(), key );
        datagram.seconds = seconds;
        used += overhead;
    }
    put( datagram, packet );
    if ( datagram.bad || datagram.length == 0 || datagram.held != datagram.length )
    {
        while ( used > maxMemory )
            giveUp( datagrams.find( ages.front() ) );
        return std::nullopt;
    }
    whole.clear();
    for ( const auto &[offset, piece] : datagram.pieces )
        whole += piece;
    giveUp( at );
    --givenUp;
    return whole;
}

// Without overlaps, the datagram is whole when it holds as many bytes as it is long.
void Fragments::put( Datagram &datagram, const Packet &packet )
{
    constexpr std::size_t maxLength = 65535;
    std::size_t begin = packet.offset, end = begin + packet.payload.size();
    auto next = datagram.pieces.lower_bound( begin );
    bool again = next != datagram.pieces.end() && next->first == begin && next->second == packet.payload;
    if ( datagram.bad || again )
        return;
    bool overlaps = ( next != datagram.pieces.end() && next->first < end )
                    || ( next != datagram.pieces.begin()
                         && std::prev( next )->first + std::prev( next )->second.size() > begin );
    bool beyond = datagram.length != 0 && ( end > datagram.length || !packet.more );
    if ( packet.missing || begin == end || overlaps || beyond || end > maxLength
         || ( !packet.more && !datagram.pieces.empty() && datagram.pieces.rbegin()->first >= end ) )
    {
        datagram.bad = true;
        for ( const auto &[offset, piece] : datagram.pieces )
            used -= piece.size() + overhead;
        datagram.pieces.clear();
        return;
    }
    datagram.pieces.emplace_hint( next, begin, packet.payload );
    used += packet.payload.size() + overhead;
    datagram.held += packet.payload.size();
    if ( !packet.more )
        datagram.length = end;
}

void Fragments::giveUp( Held::iterator at )
{
    for ( const auto &[offset, piece] : at->second.pieces )
        used -= piece.size() + overhead;
    used -= overhead;
    ages.erase( at->second.age );
    datagrams.erase( at );
    ++givenUp;
}

} // namespace tools
