// Headers of earlier messages in which nothing was wrong. An INVITE of a capture takes 17,000 instructions instead of
// 50,000 if its headers are looked up here and not decoded.
#pragma once

#include <array>

#include "rt/rt_memory.hpp"
#include "telsx/telsx_header_table.hpp"

namespace telsx
{

// What a header says that is a fault in some messages and not in others.
struct HeaderFacts
{
    enum class Address
    {
        none,
        sips,
        other
    };

    int64_t count = 0;             // of values
    int64_t plainValue = -1;       // Contact: the first value that is no sips URI
    int64_t expires = -1;          // Expires
    Ref<RT_STRING> method;         // Cseq
    Address first = Address::none; // of the values of Route and Record-Route
    bool hasTag = false;           // From, To
    bool isStar = false;           // Contact
    bool hasReliable = false;      // Require: 100rel
};

// By what a header is looked up: its number and its lines. Headers that differ only in parts that make no difference to
// what is found have the same key.
class HeaderKey
{
public:
    HeaderKey( const HeaderTable &table, const HeaderEntry &entry );

    Bytes bytes() const { return { text, size }; }
    uint64_t hash() const { return hashed; }
    bool isTooLong() const { return size == 0; }

private:
    static constexpr std::size_t most = 960;

    bool append( Bytes piece );

    uint64_t hashed;
    std::size_t size;
    char text[most + sizeof( uint64_t )]; // zeros follow the bytes
};

// Holds a limited number of headers. A new one takes the place of another.
class HeaderMemory
{
public:
    HeaderMemory() = default;
    HeaderMemory( const HeaderMemory & ) = delete;
    HeaderMemory &operator=( const HeaderMemory & ) = delete;
    ~HeaderMemory();

    // The facts of a header, or null. They are valid until another one is added.
    const HeaderFacts *find( const HeaderKey &key );
    void add( const HeaderKey &key, const HeaderFacts &facts );

private:
    struct Slot
    {
        rt::Array<char> key = {};
        HeaderFacts facts = {};
    };
    static constexpr std::size_t slotCount = 1024;

    Slot &slotOf( const HeaderKey &key ) { return slots[key.hash() % slotCount]; }

    std::array<Slot, slotCount> slots;
};

} // namespace telsx
