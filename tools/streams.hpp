// Puts the segments of TCP connections together, in order, and cuts them into messages (RFC 9293, 3.4).
#pragma once

#include <functional>
#include <list>
#include <map>
#include <optional>
#include <string>

#include "framing.hpp"
#include "packet.hpp"

namespace tools
{

class Streams
{
public:
    // Beyond these bytes and this number, the streams that have been quiet the longest are given up.
    static constexpr std::size_t maxMemory = 64 << 20;
    static constexpr std::size_t maxStreams = 16384;
    // Of one stream, the bytes that wait for a missing segment. Beyond them the segment is given up.
    static constexpr std::size_t maxWaiting = 256 << 10;

    // Is told each message, its source and its destination.
    using Receive = std::function<void( const Cut &, const Endpoint &, const Endpoint & )>;

    // On connections that isSip picks, all bytes are taken for SIP, on others only what begins with a start line.
    Streams( Receive receiver, std::function<bool( const Endpoint &, const Endpoint & )> isSipPort )
        : receive( std::move( receiver ) ), isSip( std::move( isSipPort ) )
    {
    }

    // Takes a packet of TCP.
    void add( const Packet &packet );

    // No more packets come: gives out what waits after holes, but no message that is not whole.
    void finish();

    // Places where bytes are missing; streams that were given up or ended inside a message; messages that were too long.
    int64_t holes() const { return holeCount; }
    int64_t unfinished() const { return unfinishedCount; }
    int64_t tooLong() const { return tooLongCount; }
    std::size_t memory() const { return used; }

private:
    // One direction of a connection.
    struct Key
    {
        Endpoint source, destination;

        auto operator<=>( const Key & ) const = default;
    };
    struct Stream
    {
        Cutter cutter;
        uint64_t next; // the sequence number that comes next; its upper half makes differences positive
        std::optional<uint64_t> end;             // where FIN stands
        std::map<uint64_t, std::string> waiting; // segments after a hole, by their sequence numbers
        std::size_t waitingBytes = 0;
        std::size_t counted = 0; // in what is used
        std::list<Key>::iterator age;
    };
    using Held = std::map<Key, Stream>;

    // An upper bound of the memory that a stream and a segment take besides their bytes.
    static constexpr std::size_t overhead = 512;

    Held::iterator open( const Key &key, uint32_t number, bool fromStart );
    void put( Held::iterator at, uint64_t number, const Packet &packet, std::string_view data );
    void deliver( Held::iterator at, std::string_view data );
    void drain( Held::iterator at );
    void skipHole( Held::iterator at );
    void close( Held::iterator at, bool ended );
    void count( Held::iterator at );

    Receive receive;
    std::function<bool( const Endpoint &, const Endpoint & )> isSip;
    Held streams;
    std::list<Key> ages; // the one that has been quiet the longest first
    std::size_t used = 0;
    int64_t holeCount = 0, unfinishedCount = 0, tooLongCount = 0;
};

} // namespace tools
