// The header names that messages usually have, as constants, found by their bytes without making a string.
#pragma once

#include <array>
#include <cstdlib>
#include <cstring>
#include <string_view>

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

template <rt::Ascii NAME>
inline constexpr auto asciiBytes = []
{
    std::array<char, std::size( NAME.chs )> bytes = {};
    for ( std::size_t i = 0; i < bytes.size(); ++i )
        bytes[i] = static_cast<char>( NAME.chs[i] );
    return bytes;
}();

template <rt::Ascii NAME>
constexpr KnownName known( std::string_view spelling )
{
    return { spelling, &rt::literalObject<NAME>, asciiBytes<NAME>.data() };
}

// Compact forms stand beside their long names.
inline constexpr KnownName knownNames[] = {
    known<"Accept">( "accept" ),
    known<"Accept-Contact">( "accept-contact" ),
    known<"Accept-Contact">( "a" ),
    known<"Accept-Encoding">( "accept-encoding" ),
    known<"Accept-Language">( "accept-language" ),
    known<"Alert-Info">( "alert-info" ),
    known<"Allow">( "allow" ),
    known<"Allow-Events">( "allow-events" ),
    known<"Allow-Events">( "u" ),
    known<"Authorization">( "authorization" ),
    known<"Call-Id">( "call-id" ),
    known<"Call-Id">( "i" ),
    known<"Call-Info">( "call-info" ),
    known<"Contact">( "contact" ),
    known<"Contact">( "m" ),
    known<"Content-Disposition">( "content-disposition" ),
    known<"Content-Encoding">( "content-encoding" ),
    known<"Content-Encoding">( "e" ),
    known<"Content-Length">( "content-length" ),
    known<"Content-Length">( "l" ),
    known<"Content-Type">( "content-type" ),
    known<"Content-Type">( "c" ),
    known<"Cseq">( "cseq" ),
    known<"Date">( "date" ),
    known<"Diversion">( "diversion" ),
    known<"Error-Info">( "error-info" ),
    known<"Event">( "event" ),
    known<"Event">( "o" ),
    known<"Expires">( "expires" ),
    known<"From">( "from" ),
    known<"From">( "f" ),
    known<"History-Info">( "history-info" ),
    known<"Identity">( "identity" ),
    known<"Identity">( "y" ),
    known<"Identity-Info">( "identity-info" ),
    known<"Identity-Info">( "n" ),
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
    known<"Refer-To">( "r" ),
    known<"Referred-By">( "referred-by" ),
    known<"Referred-By">( "b" ),
    known<"Reject-Contact">( "reject-contact" ),
    known<"Reject-Contact">( "j" ),
    known<"Remote-Party-Id">( "remote-party-id" ),
    known<"Replaces">( "replaces" ),
    known<"Reply-To">( "reply-to" ),
    known<"Request-Disposition">( "request-disposition" ),
    known<"Request-Disposition">( "d" ),
    known<"Require">( "require" ),
    known<"Retry-After">( "retry-after" ),
    known<"Route">( "route" ),
    known<"Rseq">( "rseq" ),
    known<"Server">( "server" ),
    known<"Service-Route">( "service-route" ),
    known<"Session-Expires">( "session-expires" ),
    known<"Session-Expires">( "x" ),
    known<"Session-Id">( "session-id" ),
    known<"Sip-Etag">( "sip-etag" ),
    known<"Sip-If-Match">( "sip-if-match" ),
    known<"Subject">( "subject" ),
    known<"Subject">( "s" ),
    known<"Subscription-State">( "subscription-state" ),
    known<"Supported">( "supported" ),
    known<"Supported">( "k" ),
    known<"Timestamp">( "timestamp" ),
    known<"To">( "to" ),
    known<"To">( "t" ),
    known<"Unsupported">( "unsupported" ),
    known<"User-Agent">( "user-agent" ),
    known<"Via">( "via" ),
    known<"Via">( "v" ),
    known<"Warning">( "warning" ),
    known<"Www-Authenticate">( "www-authenticate" ),
};

constexpr char lowerAscii( char ch ) { return ch >= 'A' && ch <= 'Z' ? static_cast<char>( ch + 0x20 ) : ch; }

// Where a name stands in the table: its length and three of its characters tell the known ones apart. The
// factors were found by trying; the table's check would fail for bad ones.
constexpr std::size_t knownNameSlots = 512;
template <class CHAR>
constexpr std::size_t knownNameSlot( const CHAR *name, std::size_t size )
{
    auto at = [name]( std::size_t i ) { return static_cast<std::size_t>( name[i] & 0x7F ) | 0x20; };
    return ( size * 8 + at( 0 ) * 111 + at( size / 2 ) * 316 + at( size - 1 ) * 327 ) % knownNameSlots;
}

// In each slot the number of the known name that belongs there, or -1. A compact form has the number of its
// long name, and its own place in knownNames.
struct KnownNameSlot
{
    int16_t spelling = -1, number = -1;
};
consteval std::array<KnownNameSlot, knownNameSlots> makeKnownNameTable()
{
    std::array<KnownNameSlot, knownNameSlots> table = {};
    for ( int16_t i = 0, number = 0; std::size_t( i ) < std::size( knownNames ); ++i )
    {
        if ( knownNames[i].bytes != knownNames[number].bytes )
            number = i;
        KnownNameSlot &slot =
            table[knownNameSlot( knownNames[i].spelling.data(), knownNames[i].spelling.size() )];
        if ( slot.number != -1 )
            std::abort(); // two names share a slot
        slot = { i, number };
    }
    return table;
}

inline constexpr std::array<KnownNameSlot, knownNameSlots> knownNameTable = makeKnownNameTable();

// Whether both have the same bytes, the first with its capitals made small.
inline bool equalInLowerCase( const char *mixed, const char *lower, std::size_t size )
{
    constexpr uint64_t ones = 0x0101010101010101;
    auto differ = [&]( std::size_t at, auto word )
    {
        decltype( word ) a, b;
        std::memcpy( &a, mixed + at, sizeof a );
        std::memcpy( &b, lower + at, sizeof b );
        // In each byte below 0x80 the top bit tells whether it is from A to Z.
        uint64_t wide = a, low = wide & 0x7F * ones;
        uint64_t capital =
            ( low + ( 0x80 - 'A' ) * ones ) & ~( low + ( 0x7F - 'Z' ) * ones ) & ~wide & 0x80 * ones;
        return static_cast<decltype( word )>( wide | capital >> 2 ) ^ b;
    };
    if ( size >= 8 )
    {
        uint64_t any = differ( size - 8, uint64_t() );
        for ( std::size_t at = 0; at + 8 < size; at += 8 )
            any |= differ( at, uint64_t() );
        return any == 0;
    }
    if ( size >= 4 )
        return ( differ( 0, uint32_t() ) | differ( size - 4, uint32_t() ) ) == 0;
    for ( std::size_t i = 0; i < size; ++i )
        if ( lowerAscii( mixed[i] ) != lower[i] )
            return false;
    return true;
}

// The number of a known name in any spelling, its place in knownNames, or -1.
template <class CHAR>
constexpr int64_t knownNameNumber( const CHAR *name, std::size_t size )
{
    if ( size == 0 )
        return -1;
    KnownNameSlot slot = knownNameTable[knownNameSlot( name, size )];
    if ( slot.number == -1 )
        return -1;
    std::string_view spelling = knownNames[slot.spelling].spelling;
    if ( spelling.size() != size )
        return -1;
    if constexpr ( std::is_same_v<CHAR, char> )
        if ( !std::is_constant_evaluated() )
            return equalInLowerCase( name, spelling.data(), size ) ? slot.number : -1;
    for ( std::size_t i = 0; i < size; ++i )
        if ( ( name[i] | 0x20 ) != static_cast<CHAR>( spelling[i] )
             || ( name[i] != static_cast<CHAR>( spelling[i] ) && !( name[i] >= 'A' && name[i] <= 'Z' ) ) )
            return -1;
    return slot.number;
}

// The canonical name, a constant, of a known name in any spelling, or null.
inline RT_STRING findKnownName( std::string_view name )
{
    int64_t number = knownNameNumber( name.data(), name.size() );
    return number == -1 ? nullptr : const_cast<RT_STRING>( knownNames[number].name );
}

} // namespace telsx
