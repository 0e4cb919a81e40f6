// Skippers, from the simplest to the values of whole headers.
#include "telsx/telsx_skip.h"

#include <algorithm>

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

// Literal text

int64_t telsx___SkipChar( const RT_CHAR *chs, int64_t length, RT_CHAR ch )
{
    TELSX_ASSERT_CHARS( chs, length );
    TELSX_ASSERT( RT_CHAR_OK( ch ) );
    return length && chs[0] == ch;
}

static RT_CHAR asciiLower( RT_CHAR ch ) { return ch >= 'A' && ch <= 'Z' ? ch + 0x20 : ch; }

template <class SAME> static int64_t skipText( Text text, Text skip, SAME same )
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
                     []( RT_CHAR a, RT_CHAR b ) { return asciiLower( a ) == asciiLower( b ); } );
}

// Runs

int64_t telsx___SkipDigits( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf( { chs, length }, classDigit );
}

int64_t telsx___SkipWord( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf( { chs, length }, classWord );
}

int64_t telsx___SkipAtom( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf( { chs, length }, classTokenNodot );
}

int64_t telsx___SkipSws( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf( { chs, length }, classLws );
}

int64_t telsx___SkipLws( const RT_CHAR *chs, int64_t length ) { return telsx___SkipSws( chs, length ); }

// Delimiters

int64_t telsx___SkipSwsChar( const RT_CHAR *chs, int64_t length, RT_CHAR ch )
{
    TELSX_ASSERT_CHARS( chs, length );
    TELSX_ASSERT( RT_CHAR_OK( ch ) );
    int64_t at = runOf( { chs, length }, classLws );
    return at < length && chs[at] == ch ? at + 1 : 0;
}

int64_t telsx___SkipCharSws( const RT_CHAR *chs, int64_t length, RT_CHAR ch )
{
    Text rest = { chs, length };
    int64_t found = telsx___SkipChar( chs, length, ch );
    return found ? found + runOf( rest.behind( found ), classLws ) : 0;
}

int64_t telsx___SkipSwsCharSws( const RT_CHAR *chs, int64_t length, RT_CHAR ch )
{
    Text rest = { chs, length };
    int64_t found = telsx___SkipSwsChar( chs, length, ch );
    return found ? found + runOf( rest.behind( found ), classLws ) : 0;
}

int64_t telsx___SkipColon( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipSwsCharSws( chs, length, ':' );
}

int64_t telsx___SkipHcolon( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipSwsCharSws( chs, length, ':' );
}

int64_t telsx___SkipComma( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipSwsCharSws( chs, length, ',' );
}

int64_t telsx___SkipEqual( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipSwsCharSws( chs, length, '=' );
}

int64_t telsx___SkipLparen( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipSwsCharSws( chs, length, '(' );
}

int64_t telsx___SkipRparen( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipSwsCharSws( chs, length, ')' );
}

int64_t telsx___SkipSemi( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipSwsCharSws( chs, length, ';' );
}

int64_t telsx___SkipSlash( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipSwsCharSws( chs, length, '/' );
}

int64_t telsx___SkipStar( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipSwsCharSws( chs, length, '*' );
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

// Text with a structure

int64_t telsx___SkipDotAtom( const RT_CHAR *chs, int64_t length )
{
    return skipDotted( { chs, length }, telsx___SkipAtom );
}

static bool isLineEnd( RT_CHAR ch ) { return ch == RT_CHAR_CARRIAGE_RETURN || ch == RT_CHAR_LINE_FEED; }

// The backslash at the start and the code point that it takes along, else 0.
static int64_t skipQuotedPair( Text text ) { return text.length > 1 && !isLineEnd( text.chs[1] ) ? 2 : 0; }

int64_t telsx___SkipQuotedString( const RT_CHAR *chs, int64_t length )
{
    int64_t at = telsx___SkipLdquot( chs, length );
    if ( !at )
        return 0;
    while ( at < length )
    {
        if ( chs[at] == '"' )
            return at + 1;
        if ( isLineEnd( chs[at] ) )
            return 0;
        int64_t count = chs[at] == '\\' ? skipQuotedPair( { chs + at, length - at } ) : 1;
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
