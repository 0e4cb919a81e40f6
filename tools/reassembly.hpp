// From the packets of a capture to the SIP messages in them. What it holds has a bound, whatever the packets are.
#pragma once

#include <functional>
#include <set>

#include "fragments.hpp"
#include "streams.hpp"

namespace tools
{

// How much of a capture could not be checked.
struct Losses
{
    int64_t cutPackets = 0; // captured only in part
    int64_t fragments = 0;  // datagrams of which fragments are missing or overlap
    int64_t holes = 0;      // in TCP streams
    int64_t unfinished = 0; // TCP streams that end inside a message
    int64_t tooLong = 0;    // messages
};

class Reassembly
{
public:
    // Is told each message. Of its place, file, packet and time are those of the last call of add.
    using Receive = std::function<void( const Cut &, const Place & )>;

    // What comes from or goes to one of the ports is taken for SIP, and so is what begins with a start line elsewhere.
    Reassembly( std::set<uint16_t> sipPorts, Receive receiver );

    // Takes the next packet: the frame of a link that isLinkKnown.
    void add( int link, std::string_view frame, const Place &place );

    // No more packets come.
    void finish();

    Losses losses() const;
    std::size_t memory() const { return fragments.memory() + streams.memory(); }

private:
    void addDatagram( const Packet &packet );
    bool isSip( const Endpoint &source, const Endpoint &destination ) const;
    void give( const Cut &cut, const char *transport, const Endpoint &source, const Endpoint &destination );

    std::set<uint16_t> ports;
    Receive receive;
    Place now;
    Fragments fragments;
    Streams streams;
    int64_t cutPackets = 0;
};

} // namespace tools
