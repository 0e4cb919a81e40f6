// The usual header names, as constants that are found by their bytes without making a string.
#pragma once

#include <array>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <utility>

#include "rt/rt_ascii.hpp"
#include "rt/rt_scan.hpp"
#include "rt/rt_string.hpp"

namespace telsx
{

// One spelling of a known name, in lower case, and the canonical name (telsxMessageHeaderNameNormalize) as a string and
// as bytes.
struct KnownName
{
    std::string_view spelling;
    RT_STRING name;
    std::string_view bytes;
};

// The character of a canonical name at a place where the name has ch, in any case, after the character before: a
// capital at the start and after each hyphen.
constexpr char canonicalAscii( char before, char ch )
{
    return before == '-' ? rt::upperAscii( ch ) : rt::lowerAscii( ch );
}

// The bytes of a name and of its lower-case spelling, with slack.
template <rt::Ascii NAME>
struct NameBytes
{
    std::array<char, std::size( NAME.chs ) + rt::scanSlack> canonical = {}, lower = {};

    consteval NameBytes()
    {
        char before = '-';
        for ( std::size_t i = 0; i < std::size( NAME.chs ) - 1; ++i )
        {
            char ch = static_cast<char>( NAME.chs[i] );
            if ( ch != canonicalAscii( before, ch ) )
                std::abort(); // the name is not canonical
            canonical[i] = before = ch;
            lower[i] = rt::lowerAscii( ch );
        }
    }
};
template <rt::Ascii NAME>
inline constexpr NameBytes<NAME> nameBytes;

template <rt::Ascii NAME>
constexpr KnownName known( std::string_view spelling = nameBytes<NAME>.lower.data() )
{
    return { spelling, rt::literal<NAME>(), nameBytes<NAME>.canonical.data() };
}

// All long names, followed by the compact forms.
inline constexpr KnownName knownNames[] = {
#define TELSX_KIND( NAME, SORT, SIP_NAME ) known<SIP_NAME>(),
#include "telsx/telsx_headers.def"
#undef TELSX_KIND
#define TELSX_NAME( SIP_NAME ) known<SIP_NAME>(),
#define TELSX_COMPACT_NAME( COMPACT, SIP_NAME ) known<SIP_NAME>( COMPACT ),
#include "telsx/telsx_header_names.def"
};

// How many names there are, not counting compact forms.
inline constexpr std::size_t knownCount = []
{
    std::size_t count = 0;
    while ( knownNames[count].spelling.size() > 1 )
        ++count;
    return count;
}();

// The first eight characters of a name, in lower case, as bytes; the first one is the lowest byte.
template <class CHAR>
constexpr uint64_t firstEightOf( const CHAR *name, std::size_t size )
{
    uint64_t eight = 0;
    for ( std::size_t i = 0; i < size && i < 8; ++i )
        eight |= static_cast<uint64_t>( static_cast<unsigned char>( name[i] ) | 0x20 ) << 8 * i;
    return eight;
}

// What distinguishes the known names: these eight, the last character and the length.
template <class CHAR>
constexpr uint64_t knownNameKey( uint64_t firstEight, const CHAR *name, std::size_t size )
{
    return firstEight + size * 0x80 + ( static_cast<unsigned char>( name[size - 1] ) | 0x20 );
}

// The slot of a key in the table.
constexpr std::size_t knownNameSlots = 2048;
constexpr std::size_t slotOf( uint64_t key, uint64_t factor ) { return key * factor >> 53; }

// A factor that gives each known name a slot of its own, as about one factor in a hundred does.
consteval uint64_t findFactor()
{
    std::array<uint64_t, std::size( knownNames )> keys = {};
    for ( std::size_t i = 0; i < keys.size(); ++i )
    {
        std::string_view name = knownNames[i].spelling;
        keys[i] = knownNameKey( firstEightOf( name.data(), name.size() ), name.data(), name.size() );
    }
    uint64_t factor = 0x9E3779B97F4A7C15;
    for ( int tries = 0; tries < 2000; ++tries, factor = factor * 0x5851F42D4C957F2D + 2 )
    {
        std::array<bool, knownNameSlots> isTaken = {};
        std::size_t at = 0;
        while ( at < keys.size() && !std::exchange( isTaken[slotOf( keys[at], factor )], true ) )
            ++at;
        if ( at == keys.size() )
            return factor;
    }
    std::abort(); // two names have the same key
}
inline constexpr uint64_t knownNameFactor = findFactor();

template <class CHAR>
constexpr std::size_t knownNameSlot( const CHAR *name, std::size_t size )
{
    return slotOf( knownNameKey( firstEightOf( name, size ), name, size ), knownNameFactor );
}

// In each slot, the size of the known name that belongs there, or 0, its index in knownNames, and its number. A compact
// form has the number of its long name.
struct KnownNameSlot
{
    uint8_t size = 0, spelling = 0, number = 0;
};
consteval std::array<KnownNameSlot, knownNameSlots> makeKnownNameTable()
{
    std::array<KnownNameSlot, knownNameSlots> table = {};
    static_assert( std::size( knownNames ) < UINT8_MAX );
    for ( uint8_t i = 0; i < uint8_t( std::size( knownNames ) ); ++i )
    {
        uint8_t number = 0;
        while ( knownNames[number].bytes != knownNames[i].bytes )
            ++number;
        std::string_view spelling = knownNames[i].spelling;
        table[knownNameSlot( spelling.data(), spelling.size() )] = { static_cast<uint8_t>( spelling.size() ),
                                                                     i, number };
    }
    return table;
}

inline constexpr std::array<KnownNameSlot, knownNameSlots> knownNameTable = makeKnownNameTable();

// The number of a known name in any spelling, its index in knownNames, or -1.
template <class CHAR>
constexpr int64_t knownNameNumber( const CHAR *name, std::size_t size )
{
    if ( size == 0 )
        return -1;
    KnownNameSlot slot = knownNameTable[knownNameSlot( name, size )];
    if ( slot.size != size )
        return -1;
    std::string_view spelling = knownNames[slot.spelling].spelling;
    for ( std::size_t i = 0; i < size; ++i )
        if ( ( name[i] | 0x20 ) != static_cast<CHAR>( spelling[i] )
             || ( name[i] != static_cast<CHAR>( spelling[i] ) && !( name[i] >= 'A' && name[i] <= 'Z' ) ) )
            return -1;
    return slot.number;
}

// A spelling as blocks, and for each of its letters the bit that turns a capital into lower case.
struct alignas( 16 ) SpellingBlocks
{
    char bytes[32] = {}, small[32] = {};
};
inline constexpr auto spellingBlocks = []
{
    std::array<SpellingBlocks, std::size( knownNames )> all = {};
    for ( std::size_t i = 0; i < all.size(); ++i )
        for ( std::size_t at = 0; at < knownNames[i].spelling.size(); ++at )
        {
            char ch = knownNames[i].spelling[at];
            all[i].bytes[at] = ch;
            all[i].small[at] = ch >= 'a' && ch <= 'z' ? 0x20 : 0;
        }
    return all;
}();

inline uint64_t scanFirstEight( const char *name, std::size_t size )
{
    if constexpr ( std::endian::native != std::endian::little )
        return firstEightOf( name, size );
    uint64_t eight;
    std::memcpy( &eight, name, sizeof eight );
    return ( eight | 0x2020202020202020 ) & ( size < 8 ? ( uint64_t( 1 ) << 8 * size ) - 1 : ~uint64_t( 0 ) );
}

// The same for bytes, with rt::scanSlack more readable after them.
inline int64_t scanKnownNameNumber( const char *name, std::size_t size )
{
    if ( size == 0 )
        return -1;
    uint64_t key = knownNameKey( scanFirstEight( name, size ), name, size );
    KnownNameSlot slot = knownNameTable[slotOf( key, knownNameFactor )];
    if ( slot.size != size )
        return -1;
    const SpellingBlocks &spelling = spellingBlocks[slot.spelling];
    auto differ = [&]( std::size_t at )
    {
        auto small = rt::ByteBlock::at( name + at ) | rt::ByteBlock::at( spelling.small + at );
        uint32_t equal = same( small, rt::ByteBlock::at( spelling.bytes + at ) ).mask();
        uint32_t counted = size - at < 16 ? ( 1u << ( size - at ) ) - 1 : 0xFFFF;
        return ( ~equal & counted ) != 0;
    };
    return differ( 0 ) || ( size > 16 && differ( 16 ) ) ? -1 : slot.number;
}

} // namespace telsx
