// IRIs and URIs (RFC 3987, 3.1 and 3.2). Where the host is, and what may stand where, depends only on ASCII characters
// that no conversion adds or removes. So a text has the same parts before and after a conversion.
#include "rsc/rsc_iri.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <string_view>

#include "net/net.h"
#include "rt/rt_ascii.hpp"
#include "rt/rt_scan.hpp"
#include "rt/rt_text.hpp"

using rsc::isBidiControl;
using rsc::isIprivate;
using rsc::isUcschar;
using rt::adopt;
using rt::Ref;
using rt::share;
using rt::Text;
using rt::textOf;

static bool isAmong( RT_CHAR ch, std::string_view chars )
{
    return ch < 0x80 && chars.find( static_cast<char>( ch ) ) != chars.npos;
}

// The unreserved and the reserved characters.
static constexpr auto uriChars = []
{
    std::array<bool, 0x80> chars{};
    for ( char ch : std::string_view( "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"
                                      "-._~:/?#[]@!$&'()*+,;=" ) )
        chars[static_cast<std::size_t>( ch )] = true;
    return chars;
}();

// Those of them that need no closer look in an IRI, which ends before the given character.
static constexpr rt::CharSet plainCharsUntil( RT_CHAR end )
{
    rt::CharSet chars;
    for ( unsigned char ch = 0; ch < 0x80; ++ch )
        if ( uriChars[ch] && ch != '#' && ch != '?' && ch != '-' && ch != ',' && ch != end )
            chars.add( ch );
    return chars;
}
static constexpr auto plainChars = plainCharsUntil( UINT32_MAX ),
                      plainCharsUntilSemi = plainCharsUntil( ';' );

// The current part of an IRI, as far as it decides which characters may stand there.
struct Place
{
    bool inQuery = false;
    bool inFragment = false;

    bool takes( RT_CHAR ch ) const
    {
        if ( ch < 0x80 )
            return uriChars[ch] && ( ch != '#' || !inFragment );
        return isUcschar( ch ) || ( inQuery && isIprivate( ch ) );
    }
    void pass( RT_CHAR ch )
    {
        inFragment = inFragment || ch == '#';
        inQuery = !inFragment && ( inQuery || ch == '?' );
    }
};

// The IRI at the start of a text.
struct Found
{
    int64_t length = 0;       // 0 if there is none
    bool unicode = false;     // it holds characters outside ASCII
    bool convertible = false; // it holds those, escapes of those, or something like an "xn--" label
};

static int64_t skipScheme( Text text )
{
    int64_t length = 0;
    while ( length < text.length
            && ( rt::isLetter( text.chs[length] )
                 || ( length > 0
                      && ( rt::isDigit( text.chs[length] ) || isAmong( text.chs[length], "+-." ) ) ) ) )
        ++length;
    return length;
}

// Whether the text begins with a scheme that is common in lists of addresses.
static bool beginsAddress( Text text )
{
    for ( std::string_view scheme : { "sip:", "sips:", "tel:" } )
        if ( text.length >= std::ssize( scheme )
             && std::equal( scheme.begin(), scheme.end(), text.chs,
                            []( char a, RT_CHAR b ) { return RT_CHAR( a ) == rt::lowerAscii( b ); } ) )
            return true;
    return false;
}

// The IRI at the start of the text. It ends before the character, if that occurs.
static Found find( Text text, RT_CHAR end = UINT32_MAX )
{
    Found found;
    Text rest = text;
    static constexpr RT_CHAR sip[] = { 's', 'i', 'p', ':' };
    if ( text.length >= std::ssize( sip ) && std::equal( sip, std::end( sip ), text.chs ) )
        rest.take( std::ssize( sip ) );
    else if ( !rest.take( skipScheme( rest ) ) || !rest || rest.take( 1 ).chs[0] != ':' )
        return found;
    rt::CharSet other;
    const rt::CharSet &plain = end == ';'   ? plainCharsUntilSemi
                               : end < 0x80 ? ( other = plainCharsUntil( end ) )
                                            : plainChars;
    for ( Place place; rest; place.pass( rest.take( 1 ).chs[0] ) )
    {
        rest.take( plain.runOf( rest.chs, rest.length ) );
        if ( !rest )
            break;
        RT_CHAR ch = rest.chs[0];
        if ( ch == '%' )
        {
            if ( rest.length < 3 || !rt::isHexdig( rest.chs[1] ) || !rt::isHexdig( rest.chs[2] ) )
                break;
            found.convertible |= rest.chs[1] >= '8';
            rest.take( 2 );
            continue;
        }
        if ( ch == end || !place.takes( ch ) || ( ch == ',' && beginsAddress( rest.after( 1 ) ) ) )
            break;
        found.unicode |= ch >= 0x80;
        found.convertible |= ch == '-' && rest.length > 1 && rest.chs[1] == '-';
    }
    found.length = text.length - rest.length;
    while ( text.chs[found.length - 1] == ',' )
        --found.length;
    found.convertible |= found.unicode;
    return found;
}

// An IRI in three parts. The host is empty if the scheme has none.
struct Parts
{
    Text front;
    Text host;
    Text rest;
};

static Parts split( Text iri )
{
    auto until = []( Text text, std::string_view chars )
    {
        auto isEnd = [&]( RT_CHAR ch ) { return isAmong( ch, chars ); };
        return text.first( std::find_if( text.chs, text.chs + text.length, isEnd ) - text.chs );
    };
    Text scheme = iri.first( skipScheme( iri ) );
    Text authority = iri.after( scheme.length + 1 );
    auto isScheme = [&]( std::string_view name )
    {
        return std::equal( scheme.chs, scheme.chs + scheme.length, name.begin(), name.end(),
                           []( RT_CHAR a, char b ) { return ( a | 0x20 ) == RT_CHAR( b ); } );
    };
    // In a SIP URI "@" occurs only after the user, which may hold "/" and "?" (RFC 3261, 25.1).
    if ( !isScheme( "sip" ) && !isScheme( "sips" ) )
    {
        if ( authority.length < 2 || authority.chs[0] != '/' || authority.chs[1] != '/' )
            return { iri, {}, {} };
        authority = until( authority.after( 2 ), "/?#" );
    }
    Text user = until( authority, "@" );
    // This cuts an address in brackets into pieces. Like the whole address, they do not change.
    Text host =
        until( user.length < authority.length ? authority.after( user.length + 1 ) : authority, ":;/?#" );
    return { iri.first( host.chs - iri.chs ), host, iri.after( host.chs + host.length - iri.chs ) };
}

// Characters outside ASCII become escapes of their UTF-8.
static void appendEncoded( Ref<RT_STRING> *uri, Text text )
{
    Ref<RT_STRING> string = text.copy();
    Ref<RT_BUFFER> utf8 = adopt( rtCharsetStringToBuffer( RT_CHARSET_UTF8, string.get() ) );
    auto bytes = static_cast<const uint8_t *>( rtBufferBacking( utf8.get() ) );
    for ( int64_t i = 0; i < rtBufferLength( utf8.get() ); ++i )
        if ( bytes[i] < 0x80 )
            rtStringAppendChar( uri->address(), bytes[i] );
        else
        {
            const char *digits = "0123456789ABCDEF";
            const char escape[] = { '%', digits[bytes[i] >> 4], digits[bytes[i] & 0xF] };
            rtStringAppendCstr( uri->address(), escape, sizeof escape );
        }
}

// Takes one character. Escapes are taken together as the character that they stand for, if an IRI may hold it there.
static RT_CHAR takeDecoded( Text *text, const Place &place )
{
    std::array<char, 4> bytes;
    int64_t count = 0, needed = 1;
    for ( ; count < needed && text->length > 3 * count && text->chs[3 * count] == '%'; ++count )
    {
        int64_t value = 0;
        rtFormatTryDecodeIntChars( text->chs + 3 * count + 1, 2, 16, &value, nullptr );
        bytes[static_cast<std::size_t>( count )] = static_cast<char>( value );
        if ( count == 0 )
            needed = std::clamp( std::countl_one( static_cast<uint8_t>( value ) ), 0, 4 );
    }
    if ( count > 1 && count == needed )
        if ( auto decoded = adopt( rtStringTryCreateFromUtf8( bytes.data(), count ) ) )
            if ( RT_CHAR ch = rtStringCharAt( decoded.get(), 0 ); place.takes( ch ) && !isBidiControl( ch ) )
            {
                text->take( 3 * count );
                return ch;
            }
    return text->take( 1 ).chs[0];
}

static void appendDecoded( Ref<RT_STRING> *iri, Text text, Place *place )
{
    while ( text )
    {
        RT_CHAR ch = takeDecoded( &text, *place );
        place->pass( ch );
        if ( isBidiControl( ch ) )
            appendEncoded( iri, { &ch, 1 } );
        else
            rtStringAppendChar( iri->address(), ch );
    }
}

// A host that is not a domain name, neither in ASCII nor in Unicode, is escaped like any other text.
static Ref<RT_STRING> hostToAscii( Text host )
{
    Ref<RT_STRING> name = host.copy(), ascii = adopt( rtStringCreate() );
    if ( netDnsIdnaDomainNameOk( name.get() ) )
        return adopt( netDnsIdnaDomainNameToAscii( name.get() ) );
    appendEncoded( &ascii, host );
    return ascii;
}

RT_BOOL rscGensValidatePart( int64_t part, RT_STRING text )
{
    RT_ASSERT( part == RSC_GENS_PART_IRI );
    RT_ASSERT( text );
    return rt::covers( rsc___SkipIri, text );
}

RT_STRING rscTryConvertToUri( RT_STRING iri )
{
    RT_ASSERT( iri );
    Text text = textOf( iri );
    Found found = find( text );
    if ( found.length == 0 || found.length < text.length )
        return nullptr;
    if ( !found.unicode )
        return share( iri ).take();
    Parts parts = split( text );
    Ref<RT_STRING> uri = adopt( rtStringCreate() );
    appendEncoded( &uri, parts.front );
    rtStringAppend( uri.address(), hostToAscii( parts.host ).get() );
    appendEncoded( &uri, parts.rest );
    return uri.take();
}

// The host is converted to ASCII first, so that it has one form however it is written.
static Ref<RT_STRING> convertFromUri( Text uri )
{
    Parts parts = split( uri );
    Place place;
    Ref<RT_STRING> iri = adopt( rtStringCreate() );
    appendDecoded( &iri, parts.front, &place );
    Ref<RT_STRING> host = hostToAscii( parts.host );
    if ( netDnsIdnaDomainNameOk( host.get() ) )
        rtStringAppend( iri.address(), adopt( netDnsIdnaDomainNameToUnicode( host.get() ) ).get() );
    else
        appendDecoded( &iri, textOf( host ), &place );
    appendDecoded( &iri, parts.rest, &place );
    return iri;
}

RT_STRING rscTryConvertFromUri( RT_STRING uri )
{
    RT_ASSERT( uri );
    Text text = textOf( uri );
    Found found = find( text );
    if ( found.length == 0 || found.length < text.length )
        return nullptr;
    return ( found.convertible ? convertFromUri( text ) : share( uri ) ).take();
}

RT_STRING rsc___TryConvertUriAtStart( const RT_CHAR *chs, int64_t length, RT_CHAR end, int64_t *found )
{
    Found uri = find( { chs, length }, end );
    *found = uri.length;
    Text text = { chs, uri.length };
    return text ? ( uri.convertible ? convertFromUri( text ) : text.copy() ).take() : nullptr;
}

int64_t rsc___SkipIri( const RT_CHAR *chs, int64_t length )
{
    RT_ASSERT( length >= 0 );
    RT_ASSERT( chs || length == 0 );
    return find( { chs, length } ).length;
}

int64_t rsc___SkipIriUntil( const RT_CHAR *chs, int64_t length, RT_CHAR end )
{
    RT_ASSERT( length >= 0 );
    RT_ASSERT( chs || length == 0 );
    return find( { chs, length }, end ).length;
}

int64_t rsc___SkipIpV4Address( const RT_CHAR *chs, int64_t length )
{
    return net___SkipIpV4Address( chs, length );
}

int64_t rsc___SkipIpV6Address( const RT_CHAR *chs, int64_t length )
{
    return net___SkipIpV6Address( chs, length );
}

int64_t rsc___SkipPort( const RT_CHAR *chs, int64_t length )
{
    RT_ASSERT( length >= 0 );
    RT_ASSERT( chs || length == 0 );
    return std::find_if_not( chs, chs + length, rt::isDigit ) - chs;
}
