// Skippers, from the simplest to the values of whole headers.
#include "telsx/telsx_skip.h"

#include <algorithm>
#include <span>
#include <string_view>

#include "rt/rt_ascii.hpp"
#include "telsx/telsx_char.hpp"
#include "telsx/telsx_content_coding.h"
#include "telsx/telsx_date.hpp"
#include "telsx/telsx_host.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_media_subtype.h"
#include "telsx/telsx_media_type.h"
#include "telsx/telsx_port.h"
#include "telsx/telsx_reason_protocol.h"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_transport.h"

using namespace telsx;

// Literal text

int64_t telsx___SkipChar( const RT_CHAR *chs, int64_t length, RT_CHAR ch )
{
    TELSX_ASSERT_CHARS( chs, length );
    TELSX_ASSERT( RT_CHAR_OK( ch ) );
    return length && chs[0] == ch;
}

template <class SAME>
static int64_t skipText( Text text, Text skip, SAME same )
{
    return text.length >= skip.length && std::equal( skip.chs, skip.chs + skip.length, text.chs, same )
               ? skip.length
               : 0;
}

int64_t telsx___SkipChars( const RT_CHAR *chs, int64_t length, const RT_CHAR *skipChs, int64_t skipLength )
{
    TELSX_ASSERT_CHARS( chs, length );
    TELSX_ASSERT_CHARS( skipChs, skipLength );
    return skipText( { chs, length }, { skipChs, skipLength }, std::equal_to<>() );
}

int64_t telsx___SkipCharsAsciiCaseFold( const RT_CHAR *chs, int64_t length, const RT_CHAR *skipChs,
                                        int64_t skipLength )
{
    TELSX_ASSERT_CHARS( chs, length );
    TELSX_ASSERT_CHARS( skipChs, skipLength );
    return skipText( { chs, length }, { skipChs, skipLength },
                     []( RT_CHAR a, RT_CHAR b )
                     { return a == b || rt::lowerAscii( a ) == rt::lowerAscii( b ); } );
}

// Runs

int64_t telsx___SkipDigits( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classDigit>( { chs, length } );
}

int64_t telsx___SkipWord( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classWord>( { chs, length } );
}

int64_t telsx___SkipAtom( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classTokenNodot>( { chs, length } );
}

int64_t telsx___SkipToken( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}

int64_t telsx___SkipTokenNodot( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classTokenNodot>( { chs, length } );
}

int64_t telsx___SkipMethod( const RT_CHAR *chs, int64_t length ) { return telsx___SkipToken( chs, length ); }

int64_t telsx___SkipProtocolName( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipToken( chs, length );
}

int64_t telsx___SkipProtocolVersion( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipToken( chs, length );
}

int64_t telsx___SkipMessageHeaderName( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipToken( chs, length );
}

static bool isWhite( RT_CHAR ch ) { return ch <= ' ' && ( ch == ' ' || ch == '\t' ); }

static int64_t skipWhite( Text text )
{
    int64_t at = 0;
    while ( at < text.length && isWhite( text.chs[at] ) )
        ++at;
    return at;
}

int64_t telsx___SkipSws( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWhite( { chs, length } );
}

int64_t telsx___SkipLws( const RT_CHAR *chs, int64_t length ) { return telsx___SkipSws( chs, length ); }

// Delimiters

int64_t telsx___SkipSwsChar( const RT_CHAR *chs, int64_t length, RT_CHAR ch )
{
    TELSX_ASSERT_CHARS( chs, length );
    TELSX_ASSERT( RT_CHAR_OK( ch ) );
    int64_t at = skipWhite( { chs, length } );
    return at < length && chs[at] == ch ? at + 1 : 0;
}

int64_t telsx___SkipCharSws( const RT_CHAR *chs, int64_t length, RT_CHAR ch )
{
    Text rest = { chs, length };
    int64_t found = telsx___SkipChar( chs, length, ch );
    return found ? found + skipWhite( rest.after( found ) ) : 0;
}

static int64_t skipSwsCharSws( Text text, RT_CHAR ch )
{
    int64_t at = skipWhite( text );
    bool found = at < text.length && text.chs[at] == ch;
    return found ? at + 1 + skipWhite( text.after( at + 1 ) ) : 0;
}

int64_t telsx___SkipSwsCharSws( const RT_CHAR *chs, int64_t length, RT_CHAR ch )
{
    TELSX_ASSERT_CHARS( chs, length );
    TELSX_ASSERT( RT_CHAR_OK( ch ) );
    return skipSwsCharSws( { chs, length }, ch );
}

int64_t telsx___SkipColon( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipSwsCharSws( { chs, length }, ':' );
}

int64_t telsx___SkipHcolon( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipSwsCharSws( { chs, length }, ':' );
}

int64_t telsx___SkipComma( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipSwsCharSws( { chs, length }, ',' );
}

int64_t telsx___SkipEqual( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipSwsCharSws( { chs, length }, '=' );
}

int64_t telsx___SkipLparen( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipSwsCharSws( { chs, length }, '(' );
}

int64_t telsx___SkipRparen( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipSwsCharSws( { chs, length }, ')' );
}

int64_t telsx___SkipSemi( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipSwsCharSws( { chs, length }, ';' );
}

int64_t telsx___SkipSlash( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipSwsCharSws( { chs, length }, '/' );
}

int64_t telsx___SkipStar( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipSwsCharSws( { chs, length }, '*' );
}

int64_t telsx___SkipLaquot( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipSwsChar( chs, length, '<' );
}

int64_t telsx___SkipLdquot( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipSwsChar( chs, length, '"' );
}

int64_t telsx___SkipRaquot( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipCharSws( chs, length, '>' );
}

int64_t telsx___SkipRdquot( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipCharSws( chs, length, '"' );
}

// Structured text

int64_t telsx___SkipDotAtom( const RT_CHAR *chs, int64_t length )
{
    return skipDotted( { chs, length }, telsx___SkipAtom );
}

static bool isLineEnd( RT_CHAR ch ) { return ch == RT_CHAR_CARRIAGE_RETURN || ch == RT_CHAR_LINE_FEED; }

// The length of the backslash at the start and the code point that it escapes, else 0.
static int64_t skipQuotedPair( Text text ) { return text.length > 1 && !isLineEnd( text.chs[1] ) ? 2 : 0; }

int64_t telsx___SkipQuotedString( const RT_CHAR *chs, int64_t length )
{
    int64_t at = telsx___SkipLdquot( chs, length );
    if ( !at )
        return 0;
    while ( at < length )
    {
        RT_CHAR ch = chs[at];
        if ( ch > '\\' || ( ch > '"' && ch < '\\' ) )
        {
            ++at;
            continue;
        }
        if ( ch == '"' )
            return at + 1;
        int64_t count = ch == '\\' ? skipQuotedPair( { chs + at, length - at } ) : !isLineEnd( ch );
        if ( !count )
            return 0;
        at += count;
    }
    return 0;
}

static bool isCommentText( RT_CHAR ch ) { return ch == '\t' || ( ch >= 0x20 && ch != 0x7F ); }

int64_t telsx___SkipComment( const RT_CHAR *chs, int64_t length )
{
    int64_t at = telsx___SkipLparen( chs, length ), depth = at ? 1 : 0;
    while ( depth && at < length )
    {
        Text rest = { chs + at, length - at };
        int64_t count = isCommentText( chs[at] );
        if ( chs[at] == '\\' )
            count = skipQuotedPair( rest );
        else if ( chs[at] == '(' )
        {
            count = telsx___SkipLparen( rest.chs, rest.length );
            ++depth;
        }
        else if ( chs[at] == ')' )
        {
            count = telsx___SkipRparen( rest.chs, rest.length );
            --depth;
        }
        if ( !count )
            return 0;
        at += count;
    }
    return depth ? 0 : at;
}

// Composites. A sequence matches all its parts or returns 0.

template <class... SKIPPER>
static int64_t skipAll( Text text, SKIPPER... parts )
{
    Text rest = text;
    return ( rest.take( parts ) && ... ) ? text.length - rest.length : 0;
}

// The first alternative that matches anything.
template <class... SKIPPER>
static int64_t skipAny( Text text, SKIPPER... alternatives )
{
    int64_t found = 0;
    (void)( ( found = alternatives( text.chs, text.length ) ) || ... );
    return found;
}

// Elements after semicolons, up to a semicolon that no element follows.
static int64_t skipParams( Text text, Skipper skipParam )
{
    Text rest = text;
    while ( int64_t param = skipAll( rest, telsx___SkipSemi, skipParam ) )
        rest.take( param );
    return text.length - rest.length;
}

// A mandatory front and the generic parameters after it.
static int64_t skipWithParams( Text text, int64_t front )
{
    return front ? front + skipParams( text.after( front ), telsx___SkipGenericParam ) : 0;
}

int64_t telsx___SkipDisplayName( const RT_CHAR *chs, int64_t length )
{
    if ( int64_t quoted = telsx___SkipQuotedString( chs, length ) )
        return quoted;
    Text rest = { chs, length };
    while ( rest.take( telsx___SkipToken ) )
        rest.take( telsx___SkipLws );
    return length - rest.length;
}

int64_t telsx___SkipNameAddr( const RT_CHAR *chs, int64_t length )
{
    Text rest = { chs, length };
    Text name = rest.take( telsx___SkipDisplayName );
    int64_t address = skipAll( rest, telsx___SkipLaquot, telsx___SkipUri, telsx___SkipRaquot );
    return address ? name.length + address : 0;
}

int64_t telsx___SkipGenericParam( const RT_CHAR *chs, int64_t length )
{
    Text rest = { chs, length };
    if ( !rest.take( telsx___SkipToken ) )
        return 0;
    if ( !rest.take( telsx___SkipEqual ) )
        return length - rest.length;
    int64_t value = skipAny( rest, telsx___SkipToken, telsx___SkipHost, telsx___SkipQuotedString );
    return value ? length - rest.length + value : 0;
}

int64_t telsx___SkipGenericParams( const RT_CHAR *chs, int64_t length )
{
    return skipParams( { chs, length }, telsx___SkipGenericParam );
}

int64_t telsx___SkipContact( const RT_CHAR *chs, int64_t length )
{
    Text text = { chs, length };
    return skipWithParams( text, skipAny( text, telsx___SkipNameAddr, telsx___SkipAddrSpec ) );
}

int64_t telsx___SkipRoute( const RT_CHAR *chs, int64_t length )
{
    return skipWithParams( { chs, length }, telsx___SkipNameAddr( chs, length ) );
}

int64_t telsx___SkipDiversion( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipRoute( chs, length );
}

int64_t telsx___SkipHistoryInfo( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipRoute( chs, length );
}

int64_t telsx___SkipIdentityValue( const RT_CHAR *chs, int64_t length )
{
    return skipAny( { chs, length }, telsx___SkipNameAddr, telsx___SkipAddrSpec );
}

int64_t telsx___SkipAlertInfo( const RT_CHAR *chs, int64_t length )
{
    Text text = { chs, length };
    return skipWithParams( text, skipAll( text, telsx___SkipLaquot, telsx___SkipUri, telsx___SkipRaquot ) );
}

int64_t telsx___SkipCallInfo( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipAlertInfo( chs, length );
}

int64_t telsx___SkipErrorInfo( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipAlertInfo( chs, length );
}

int64_t telsx___SkipReason( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWithParams( { chs, length }, telsx___SkipReasonProtocol( chs, length ) );
}

int64_t telsx___SkipAcceptEncoding( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWithParams( { chs, length }, telsx___SkipContentCoding( chs, length ) );
}

// The wildcard: a star that is not part of a longer token.
static int64_t skipStar( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipToken( chs, length ) == 1 && chs[0] == '*';
}

int64_t telsx___SkipAccept( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text text = { chs, length };
    int64_t range = skipAll( text, telsx___SkipMediaType, telsx___SkipSlash, telsx___SkipMediaSubtype );
    if ( !range )
        range = skipAll( text, telsx___SkipMediaType, telsx___SkipSlash, skipStar );
    if ( !range )
        range = skipAll( text, skipStar, telsx___SkipSlash, skipStar );
    return skipWithParams( text, range );
}

int64_t telsx___SkipVersion( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text text = { chs, length };
    static constexpr int64_t usual = 7;
    if ( length > usual && equals<"SIP/2.0">( text.first( usual ) ) && !isIn( chs[usual], classToken ) )
        return usual;
    return skipAll( text, telsx___SkipProtocolName, telsx___SkipSlash, telsx___SkipProtocolVersion );
}

int64_t telsx___SkipVia( const RT_CHAR *chs, int64_t length )
{
    Text text = { chs, length }, rest = text;
    if ( !rest.take( skipAll( text, telsx___SkipVersion, telsx___SkipSlash, telsx___SkipTransport,
                              telsx___SkipLws, telsx___SkipHost ) ) )
        return 0;
    if ( rest.take( telsx___SkipColon ) && !rest.take( telsx___SkipPort ) )
        return 0;
    return length - rest.length + skipParams( rest, telsx___SkipViaParams );
}

int64_t telsx___SkipViaParams( const RT_CHAR *chs, int64_t length )
{
    return skipAny( { chs, length }, telsx___SkipViaReceived, telsx___SkipGenericParam );
}

int64_t telsx___SkipViaReceived( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    if ( !beginsInAnyCase<"received">( rest ) || !rest.take( 8 ) || !rest.take( telsx___SkipEqual ) )
        return 0;
    int64_t address = skipAny( rest, telsx___SkipIpV6Address, telsx___SkipIpV4Address );
    return address ? length - rest.length + address : 0;
}

int64_t telsx___SkipWarnCode( const RT_CHAR *chs, int64_t length )
{
    int64_t digits = telsx___SkipDigits( chs, length );
    return digits == 3 ? digits : 0;
}

int64_t telsx___SkipWarnAgent( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipAny( { chs, length }, telsx___SkipHostPort, telsx___SkipToken );
}

int64_t telsx___SkipWarningValue( const RT_CHAR *chs, int64_t length )
{
    return skipAll( { chs, length }, telsx___SkipWarnCode, telsx___SkipLws, telsx___SkipWarnAgent,
                    telsx___SkipLws, telsx___SkipQuotedString );
}

int64_t telsx___SkipServerVal( const RT_CHAR *chs, int64_t length )
{
    Text rest = { chs, length };
    if ( !rest.take( telsx___SkipToken ) )
        return telsx___SkipComment( chs, length );
    if ( rest.take( telsx___SkipSlash ) && !rest.take( telsx___SkipToken ) )
        return 0;
    return length - rest.length;
}

int64_t telsx___SkipServer( const RT_CHAR *chs, int64_t length )
{
    Text rest = { chs, length };
    do
    {
        if ( !rest.take( telsx___SkipServerVal ) )
            return 0;
    } while ( rest.take( telsx___SkipLws ) );
    return length - rest.length;
}

int64_t telsx___SkipUserAgent( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipServer( chs, length );
}

// The names in order; index is set to the number of the one that the text begins with.
static int64_t skipName( Text text, std::span<const std::string_view> names, int64_t firstIndex,
                         int64_t *index )
{
    for ( std::string_view name : names )
    {
        if ( text.length >= 3 && std::equal( name.begin(), name.end(), text.chs ) )
        {
            if ( index )
                *index = firstIndex;
            return 3;
        }
        ++firstIndex;
    }
    return 0;
}

int64_t telsx___SkipMonth( const RT_CHAR *chs, int64_t length, int64_t *month )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipName( { chs, length }, monthNames, 1, month );
}

int64_t telsx___SkipWkday( const RT_CHAR *chs, int64_t length, int64_t *weekday )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipName( { chs, length }, weekdayNames, 0, weekday );
}
