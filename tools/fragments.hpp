// Puts fragments of IP datagrams together.
#pragma once

#include <list>
#include <map>
#include <optional>
#include <string>

#include "packet.hpp"

namespace tools
{

class Fragments
{
public:
    static constexpr std::size_t maxMemory = 4 << 20; // bytes; beyond that, the oldest datagrams are given up
    static constexpr int64_t maxAge = 60;             // seconds (RFC 8200, 4.5)

    // The payload of the datagram that this fragment completes, until the next call. A datagram whose fragments overlap
    // is given up (RFC 5722).
    std::optional<std::string_view> add( const Packet &packet, int64_t seconds );

    // How many datagrams were given up or are incomplete.
    int64_t lost() const { return givenUp + static_cast<int64_t>( datagrams.size() ); }
    std::size_t memory() const { return used; }

private:
    struct Key
    {
        Endpoint source, destination;
        unsigned protocol;
        uint32_t id;

        auto operator<=>( const Key & ) const = default;
    };
    struct Datagram
    {
        std::map<std::size_t, std::string> pieces; // by their offset
        std::size_t held = 0;                      // bytes
        std::size_t length = 0;                    // 0 until the last piece is there
        bool bad = false;
        int64_t seconds = 0; // when the first piece came
        std::list<Key>::iterator age;
    };
    using Held = std::map<Key, Datagram>;

    // An upper bound of the memory that a piece takes besides its bytes, and a datagram besides its pieces.
    static constexpr std::size_t overhead = 256;

    void put( Datagram &datagram, const Packet &packet );
    void giveUp( Held::iterator at );

    Held datagrams;
    std::list<Key> ages; // the oldest first
    std::size_t used = 0;
    int64_t givenUp = 0;
    std::string whole;
};

} // namespace tools
