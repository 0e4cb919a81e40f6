#include "streams.hpp"

namespace tools
{

void Streams::add( const Packet &packet )
{
    std::string_view bytes = packet.payload;
    if ( bytes.size() < 20 )
        return;
    std::size_t header = std::size_t( static_cast<unsigned char>( bytes[12] ) >> 4 ) * 4;
    if ( header < 20 || header > bytes.size() )
        return;
    constexpr unsigned fin = 1, syn = 2, rst = 4;
    auto flags = static_cast<unsigned char>( bytes[13] );
    uint32_t number = number32( bytes, 4 ) + ( flags & syn ? 1 : 0 );
    std::string_view data = bytes.substr( header );
    Key key{ packet.source, packet.destination };
    key.source.port = static_cast<uint16_t>( number16( bytes, 0 ) );
    key.destination.port = static_cast<uint16_t>( number16( bytes, 2 ) );

    auto at = streams.find( key );
    if ( at != streams.end() && flags & syn && static_cast<uint32_t>( at->second.next ) != number )
    {
        close( at, true );
        at = streams.end();
    }
    if ( at == streams.end() )
    {
        if ( data.empty() && !( flags & syn ) )
            return;
        at = open( key, number, flags & syn );
    }
    Stream &stream = at->second;
    ages.splice( ages.end(), ages, stream.age );
    // Sequence numbers are counted round; the nearer half is meant.
    uint64_t place = stream.next
                     + static_cast<uint64_t>( static_cast<int64_t>(
                         static_cast<int32_t>( number - static_cast<uint32_t>( stream.next ) ) ) );
    if ( flags & fin )
        stream.end = place + data.size() + packet.missing;
    put( at, place, packet, data );
    if ( flags & rst || ( stream.end && *stream.end <= stream.next ) )
        close( at, true );
    else
        count( at );
    while ( used > maxMemory || streams.size() > maxStreams )
        close( streams.find( ages.front() ), false );
}

Streams::Held::iterator Streams::open( const Key &key, uint32_t number, bool fromStart )
{
    bool lost = !fromStart || !isSip( key.source, key.destination );
    Stream stream{ Cutter( Cutter::Kind::Stream, lost ), ( uint64_t( 1 ) << 32 ) + number, {}, {}, 0, 0, {} };
    stream.age = ages.insert( ages.end(), key );
    return streams.emplace( key, std::move( stream ) ).first;
}

// What has come already is dropped, what comes too early waits.
void Streams::put( Held::iterator at, uint64_t number, const Packet &packet, std::string_view data )
{
    Stream &stream = at->second;
    if ( number > stream.next )
    {
        auto [waiting, isNew] = stream.waiting.try_emplace( number );
        if ( waiting->second.size() < data.size() )
        {
            stream.waitingBytes += data.size() - waiting->second.size();
            waiting->second = data;
        }
        if ( isNew )
            stream.waitingBytes += overhead;
        while ( stream.waitingBytes > maxWaiting )
            skipHole( at );
        return;
    }
    uint64_t known = stream.next - number;
    if ( known < data.size() )
        deliver( at, data.substr( known ) );
    if ( packet.missing && known < data.size() + packet.missing )
    {
        stream.next += packet.missing;
        stream.cutter.lose();
        ++holeCount;
    }
    drain( at );
}

void Streams::deliver( Held::iterator at, std::string_view data )
{
    Stream &stream = at->second;
    stream.next += data.size();
    stream.cutter.add( data );
    while ( auto cut = stream.cutter.next() )
        receive( *cut, at->first.source, at->first.destination );
}

// Delivers the segments that no hole keeps back any more.
void Streams::drain( Held::iterator at )
{
    Stream &stream = at->second;
    while ( !stream.waiting.empty() && stream.waiting.begin()->first <= stream.next )
    {
        auto first = stream.waiting.extract( stream.waiting.begin() );
        stream.waitingBytes -= first.mapped().size() + overhead;
        uint64_t known = stream.next - first.key();
        if ( known < first.mapped().size() )
            deliver( at, std::string_view( first.mapped() ).substr( known ) );
    }
}

void Streams::skipHole( Held::iterator at )
{
    Stream &stream = at->second;
    stream.next = stream.waiting.begin()->first;
    stream.cutter.lose();
    ++holeCount;
    drain( at );
}

// The end of a connection also ends the message.
void Streams::close( Held::iterator at, bool ended )
{
    Stream &stream = at->second;
    while ( !stream.waiting.empty() )
        skipHole( at );
    if ( ended )
        while ( auto cut = stream.cutter.next( true ) )
            receive( *cut, at->first.source, at->first.destination );
    if ( stream.cutter.held() )
        ++unfinishedCount;
    tooLongCount += stream.cutter.tooLong();
    used -= stream.counted;
    ages.erase( stream.age );
    streams.erase( at );
}

void Streams::count( Held::iterator at )
{
    Stream &stream = at->second;
    std::size_t now = stream.cutter.memory() + stream.waitingBytes + overhead;
    used = used - stream.counted + now;
    stream.counted = now;
}

void Streams::finish()
{
    while ( !ages.empty() )
        close( streams.find( ages.front() ), false );
}

} // namespace tools
