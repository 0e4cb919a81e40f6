// IP addresses: the grammar of RFC 3986 (3.2.2), and the text of RFC 5952.
#include "net/net_address.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "rt/rt_ascii.hpp"
#include "rt/rt_text.hpp"

using rt::Text;

using Groups = std::array<uint16_t, 8>;

struct NET_ADDRESS_
{
    RT_OBJECT object;
    int64_t family; // 4 or 6
    int64_t high;   // the groups of an IPv6 address, 64 bits each; an IPv4 address is the last 32
    int64_t low;

    static constexpr auto fields( auto &self ) { return std::tie( self.family, self.high, self.low ); }
    static auto order( auto &self )
    {
        return std::tuple( self.family, static_cast<uint64_t>( self.high ),
                           static_cast<uint64_t>( self.low ) );
    }
};
static_assert( rt::listsAllFields<NET_ADDRESS_>() );

static int64_t compareFunc( RT_OBJ objA, RT_OBJ objB )
{
    return rt::compareFields( netAddressFrom( objA ), netAddressFrom( objB ) );
}

static RT_STRING toStringFunc( RT_OBJ obj ) { return netAddressToStringShrink( netAddressFrom( obj ) ); }

RT_DEFINE_STDFUNCS( net, nullptr, Address, NET_ADDRESS, nullptr, compareFunc, toStringFunc )

// The address at the start of a text. An IPv4 address is in the last two groups.
struct Found
{
    int64_t length = 0; // 0 if there is none
    Groups groups{};
};

static bool takeChars( Text *text, std::string_view chars )
{
    auto count = static_cast<int64_t>( chars.size() );
    if ( text->length < count || !std::equal( chars.begin(), chars.end(), text->chs ) )
        return false;
    text->take( count );
    return true;
}

static bool takeNumber( Text *text, int64_t length, int64_t radix, int64_t *value )
{
    int64_t digits;
    if ( !rtFormatTryDecodeIntChars( text->chs, length, radix, value, &digits ) )
        return false;
    text->take( digits );
    return true;
}

// IPv4address = dec-octet 3( "." dec-octet )
static Found findIpV4( Text text )
{
    Found found;
    Text rest = text;
    for ( std::size_t i = 0; i < 4; ++i )
    {
        if ( i > 0 && !takeChars( &rest, "." ) )
            return {};
        if ( !rest || !rt::isDigit( rest.chs[0] ) )
            return {};
        bool isZero = rest.chs[0] == '0';
        RT_CHAR value = rest.take( 1 ).chs[0] - '0';
        for ( ; rest && rt::isDigit( rest.chs[0] ); rest.take( 1 ) )
        {
            value = value * 10 + rest.chs[0] - '0';
            if ( isZero || value > 255 )
                return {};
        }
        uint16_t &group = found.groups[6 + i / 2];
        group = static_cast<uint16_t>( RT_CHAR{ group } << 8 | value );
    }
    found.length = text.length - rest.length;
    return found;
}

// IPv6address: eight groups of up to four hex digits. One "::" may stand for one or more groups of zero, and the last
// two groups may be an IPv4 address.
static Found findIpV6( Text text )
{
    Found found;
    Text rest = text;
    auto at = found.groups.begin(), gap = found.groups.end(), end = found.groups.end();
    auto complete = [&] { found.length = text.length - rest.length; };
    while ( true )
    {
        if ( gap == found.groups.end() && at != end && takeChars( &rest, "::" ) )
        {
            gap = at;
            --end;
            complete();
        }
        else if ( at != found.groups.begin() && !takeChars( &rest, ":" ) )
            break;
        if ( at == end )
            break;

        auto left = end - at;
        Found ipV4 = ( gap == found.groups.end() ? left == 2 : left >= 2 ) ? findIpV4( rest ) : Found();
        int64_t value;
        if ( ipV4.length )
        {
            rest.take( ipV4.length );
            at = std::copy_n( &ipV4.groups[6], 2, at );
        }
        else if ( takeNumber( &rest, rtIntMin( rest.length, 4 ), 16, &value ) )
            *at++ = static_cast<uint16_t>( value );
        else
            break;
        if ( gap != found.groups.end() || at == end )
            complete();
        if ( ipV4.length )
            break;
    }
    if ( gap != found.groups.end() )
        std::rotate( gap, at, found.groups.end() );
    return found;
}

NET_ADDRESS netAddressTryCreateFromChars( const RT_CHAR *chs, int64_t length )
{
    RT_ASSERT( length >= 0 );
    RT_ASSERT( chs || length == 0 );
    Found ipV4 = findIpV4( { chs, length } );
    Found found = ipV4.length ? ipV4 : findIpV6( { chs, length } );
    if ( length == 0 || found.length != length )
        return nullptr;
    auto half = [&]( std::size_t first )
    {
        uint64_t bits = 0;
        for ( std::size_t i = first; i < first + 4; ++i )
            bits = bits << 16 | found.groups[i];
        return static_cast<int64_t>( bits );
    };
    NET_ADDRESS address = rt::create<NET_ADDRESS_>( netAddressSort() );
    address->family = ipV4.length ? 4 : 6;
    address->high = half( 0 );
    address->low = half( 4 );
    return address;
}

static void appendIpV4( RT_STRING *text, int64_t bits )
{
    rtStringAppendFormatCstr( text, "%i.%i.%i.%i", -1, bits >> 24 & 0xFF, bits >> 16 & 0xFF, bits >> 8 & 0xFF,
                              bits & 0xFF );
}

static void appendIpV6( RT_STRING *text, NET_ADDRESS address )
{
    Groups groups;
    for ( int i = 0; i < 8; ++i )
        groups[static_cast<std::size_t>( i )] =
            static_cast<uint16_t>( ( i < 4 ? address->high : address->low ) >> ( 48 - i % 4 * 16 ) );
    bool mapped = address->high == 0 && address->low >> 32 == 0xFFFF;
    std::size_t count = mapped ? 6 : 8;

    // The first of the longest runs of two or more zeros (RFC 5952, 4.2).
    std::size_t gap = count, gapLength = 1;
    for ( std::size_t i = 0, run = 0; i < count; ++i )
    {
        run = groups[i] == 0 ? run + 1 : 0;
        if ( run > gapLength )
        {
            gapLength = run;
            gap = i + 1 - run;
        }
    }
    for ( std::size_t i = 0; i < count; ++i )
    {
        if ( i == gap )
        {
            rtStringAppendCstr( text, "::", -1 );
            i += gapLength - 1;
            continue;
        }
        char group[8];
        bool first = i == 0 || i == gap + gapLength;
        std::snprintf( group, sizeof group, first ? "%x" : ":%x", groups[i] );
        rtStringAppendCstr( text, group, -1 );
    }
    if ( mapped )
    {
        rtStringAppendChar( text, ':' );
        appendIpV4( text, address->low );
    }
}

RT_STRING netAddressToStringShrink( NET_ADDRESS address )
{
    RT_ASSERT( address );
    RT_STRING text = rtStringCreate();
    if ( address->family == 4 )
        appendIpV4( &text, address->low );
    else
        appendIpV6( &text, address );
    return text;
}

int64_t net___SkipIpV4Address( const RT_CHAR *chs, int64_t length )
{
    RT_ASSERT( length >= 0 );
    RT_ASSERT( chs || length == 0 );
    return findIpV4( { chs, length } ).length;
}

int64_t net___SkipIpV6Address( const RT_CHAR *chs, int64_t length )
{
    RT_ASSERT( length >= 0 );
    RT_ASSERT( chs || length == 0 );
    return findIpV6( { chs, length } ).length;
}
