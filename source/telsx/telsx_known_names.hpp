// The header names that messages usually have, as constants, found by their bytes without making a string.
#pragma once

#include <array>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <utility>

#include "rt/rt_scan.hpp"
#include "rt/rt_string.hpp"

namespace telsx
{

// One way to write a known name, in lower case, and the canonical name (telsxMessageHeaderNameNormalize), as a
// string and in bytes.
struct KnownName
{
    std::string_view spelling;
    const RT_STRING_ *name;
    std::string_view bytes;
};

// The name's bytes, with slack.
template <rt::Ascii NAME>
inline constexpr auto asciiBytes = []
{
    std::array<char, std::size( NAME.chs ) + rt::scanSlack> bytes = {};
    for ( std::size_t i = 0; i < std::size( NAME.chs ); ++i )
        bytes[i] = static_cast<char>( NAME.chs[i] );
    return bytes;
}();

template <rt::Ascii NAME>
constexpr KnownName known( std::string_view spelling )
{
    return { spelling, &rt::literalObject<NAME>, asciiBytes<NAME>.data() };
}

// Compact forms (RFC 3261, 7.3.3) stand behind all long names.
inline constexpr KnownName knownNames[] = {
    known<"Accept">( "accept" ),
    known<"Accept-Contact">( "accept-contact" ),
    known<"Accept-Encoding">( "accept-encoding" ),
    known<"Accept-Language">( "accept-language" ),
    known<"Alert-Info">( "alert-info" ),
    known<"Allow">( "allow" ),
    known<"Allow-Events">( "allow-events" ),
    known<"Authorization">( "authorization" ),
    known<"Call-Id">( "call-id" ),
    known<"Call-Info">( "call-info" ),
    known<"Contact">( "contact" ),
    known<"Content-Disposition">( "content-disposition" ),
    known<"Content-Encoding">( "content-encoding" ),
    known<"Content-Length">( "content-length" ),
    known<"Content-Type">( "content-type" ),
    known<"Cseq">( "cseq" ),
    known<"Date">( "date" ),
    known<"Diversion">( "diversion" ),
    known<"Error-Info">( "error-info" ),
    known<"Event">( "event" ),
    known<"Expires">( "expires" ),
    known<"From">( "from" ),
    known<"History-Info">( "history-info" ),
    known<"Identity">( "identity" ),
    known<"Identity-Info">( "identity-info" ),
    known<"In-Reply-To">( "in-reply-to" ),
    known<"Max-Forwards">( "max-forwards" ),
    known<"Mime-Version">( "mime-version" ),
    known<"Min-Expires">( "min-expires" ),
    known<"Min-Se">( "min-se" ),
    known<"Organization">( "organization" ),
    known<"P-Access-Network-Info">( "p-access-network-info" ),
    known<"P-Asserted-Identity">( "p-asserted-identity" ),
    known<"P-Called-Party-Id">( "p-called-party-id" ),
    known<"P-Charging-Vector">( "p-charging-vector" ),
    known<"P-Preferred-Identity">( "p-preferred-identity" ),
    known<"Path">( "path" ),
    known<"Priority">( "priority" ),
    known<"Privacy">( "privacy" ),
    known<"Proxy-Authenticate">( "proxy-authenticate" ),
    known<"Proxy-Authorization">( "proxy-authorization" ),
    known<"Proxy-Require">( "proxy-require" ),
    known<"Rack">( "rack" ),
    known<"Reason">( "reason" ),
    known<"Record-Route">( "record-route" ),
    known<"Refer-To">( "refer-to" ),
    known<"Referred-By">( "referred-by" ),
    known<"Reject-Contact">( "reject-contact" ),
    known<"Remote-Party-Id">( "remote-party-id" ),
    known<"Replaces">( "replaces" ),
    known<"Reply-To">( "reply-to" ),
    known<"Request-Disposition">( "request-disposition" ),
    known<"Require">( "require" ),
    known<"Retry-After">( "retry-after" ),
    known<"Route">( "route" ),
    known<"Rseq">( "rseq" ),
    known<"Server">( "server" ),
    known<"Service-Route">( "service-route" ),
    known<"Session-Expires">( "session-expires" ),
    known<"Session-Id">( "session-id" ),
    known<"Sip-Etag">( "sip-etag" ),
    known<"Sip-If-Match">( "sip-if-match" ),
    known<"Subject">( "subject" ),
    known<"Subscription-State">( "subscription-state" ),
    known<"Supported">( "supported" ),
    known<"Timestamp">( "timestamp" ),
    known<"To">( "to" ),
    known<"Unsupported">( "unsupported" ),
    known<"User-Agent">( "user-agent" ),
    known<"Via">( "via" ),
    known<"Warning">( "warning" ),
    known<"Www-Authenticate">( "www-authenticate" ),

    known<"Accept-Contact">( "a" ),
    known<"Allow-Events">( "u" ),
    known<"Call-Id">( "i" ),
    known<"Contact">( "m" ),
    known<"Content-Encoding">( "e" ),
    known<"Content-Length">( "l" ),
    known<"Content-Type">( "c" ),
    known<"Event">( "o" ),
    known<"From">( "f" ),
    known<"Identity">( "y" ),
    known<"Identity-Info">( "n" ),
    known<"Refer-To">( "r" ),
    known<"Referred-By">( "b" ),
    known<"Reject-Contact">( "j" ),
    known<"Request-Disposition">( "d" ),
    known<"Session-Expires">( "x" ),
    known<"Subject">( "s" ),
    known<"Supported">( "k" ),
    known<"To">( "t" ),
    known<"Via">( "v" ),
};

// How many names there are, whatever their forms.
inline constexpr std::size_t knownCount = []
{
    std::size_t count = 0;
    while ( knownNames[count].spelling.size() > 1 )
        ++count;
    return count;
}();

constexpr char lowerAscii( char ch ) { return ch >= 'A' && ch <= 'Z' ? static_cast<char>( ch + 0x20 ) : ch; }

// The first eight characters of a name as bytes in small letters, the first one the lowest.
template <class CHAR>
constexpr uint64_t firstEightOf( const CHAR *name, std::size_t size )
{
    uint64_t eight = 0;
    for ( std::size_t i = 0; i < size && i < 8; ++i )
        eight |= static_cast<uint64_t>( static_cast<unsigned char>( name[i] ) | 0x20 ) << 8 * i;
    return eight;
}

// What tells the known names apart: these, the last character and the length.
template <class CHAR>
constexpr uint64_t knownNameKey( uint64_t firstEight, const CHAR *name, std::size_t size )
{
    return firstEight + size * 0x80 + ( static_cast<unsigned char>( name[size - 1] ) | 0x20 );
}

// Where a key stands in the table.
constexpr std::size_t knownNameSlots = 2048;
constexpr std::size_t slotOf( uint64_t key, uint64_t factor ) { return key * factor >> 53; }

// A factor that gives each known name a slot of its own. One in some ten does.
consteval uint64_t findFactor()
{
    uint64_t factor = 0x9E3779B97F4A7C15;
    for ( int tries = 0; tries < 200; ++tries, factor = factor * 0x5851F42D4C957F2D + 2 )
    {
        std::array<bool, knownNameSlots> isTaken = {};
        std::size_t at = 0;
        for ( ; at < std::size( knownNames ); ++at )
        {
            std::string_view name = knownNames[at].spelling;
            uint64_t key = knownNameKey( firstEightOf( name.data(), name.size() ), name.data(), name.size() );
            if ( std::exchange( isTaken[slotOf( key, factor )], true ) )
                break;
        }
        if ( at == std::size( knownNames ) )
            return factor;
    }
    std::abort(); // two names have one key
}
inline constexpr uint64_t knownNameFactor = findFactor();

template <class CHAR>
constexpr std::size_t knownNameSlot( const CHAR *name, std::size_t size )
{
    return slotOf( knownNameKey( firstEightOf( name, size ), name, size ), knownNameFactor );
}

// In each slot the size of the known name that belongs there, or 0, its place in knownNames, and its number. A compact
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

// The number of a known name in any spelling, its place in knownNames, or -1.
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

// A spelling as blocks, and the bit that makes a capital small where it has a letter.
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

// The same for bytes, behind which rt::scanSlack more can be read.
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
