// Numbers from text, and text from formats.
#include "rt/rt_format.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "rt/rt_ascii.hpp"
#include "rt/rt_string.hpp"
#include "rt/rt_text.hpp"

using rt::lengthOf;
using rt::Text;
using rt::widened;

RT_BOOL rtFormatTryDecodeIntChars( const RT_CHAR *chs, int64_t length, int64_t radix, int64_t *value,
                                   int64_t *consumed )
{
    RT_ASSERT( length >= 0 );
    RT_ASSERT( chs || length == 0 );
    RT_ASSERT( radix >= 2 && radix <= 36 );
    RT_ASSERT( value );
    int64_t count = rt::readNumber( chs, length, radix, value );
    if ( count == 0 )
        return 0;
    if ( consumed )
        *consumed = count;
    return 1;
}

RT_BOOL rtStringScanInt( RT_STRING string, int64_t offset, int64_t length, int64_t radix, int64_t *value,
                         int64_t *consumed )
{
    RT_ASSERT( string );
    RT_ASSERT( offset >= 0 && offset <= string->length );
    RT_ASSERT( length >= -1 && length <= string->length - offset );
    if ( length == -1 )
        length = string->length - offset;
    return rtFormatTryDecodeIntChars( string->chs + offset, length, radix, value, consumed );
}

int64_t rtIntMin( int64_t a, int64_t b ) { return a < b ? a : b; }

int64_t rtIntMax( int64_t a, int64_t b ) { return a > b ? a : b; }

// Formats

namespace
{

// The argument list, which goes by reference from directive to directive.
struct ArgList
{
    va_list args;
};

// A format, or what is left of it.
template <class CHAR>
struct Format
{
    const CHAR *at, *end;

    bool takes( std::string_view word )
    {
        bool found =
            end - at >= static_cast<int64_t>( word.size() )
            && std::equal( word.begin(), word.end(), at, []( char a, CHAR b ) { return CHAR( a ) == b; } );
        at += found ? word.size() : 0;
        return found;
    }
    int64_t takeNumber()
    {
        int64_t number = 0;
        at += rt::readNumber( at, end - at, 10, &number );
        return number;
    }
};

} // namespace

static int64_t decimalWidth( int64_t value )
{
    int64_t width = 1;
    while ( value /= 10 )
        ++width;
    return width;
}

static void appendInt( RT_STRING *string, int64_t value, int64_t width, int radix = 10,
                       bool capitals = false )
{
    char digits[72];
    uint64_t magnitude = value < 0 ? -static_cast<uint64_t>( value ) : static_cast<uint64_t>( value );
    char *end = std::to_chars( digits, std::end( digits ), magnitude, radix ).ptr;
    if ( capitals )
        std::transform( digits, end, digits, rt::upperAscii<char> );
    if ( value < 0 )
        rtStringAppendChar( string, '-' );
    for ( int64_t zeros = width - ( end - digits ); zeros > 0; --zeros )
        rtStringAppendChar( string, '0' );
    rtStringAppendCstr( string, digits, end - digits );
}

// The string may be among its own arguments, and its block gone by now; what it held is still its beginning.
static void appendArgument( RT_STRING *string, RT_STRING before, int64_t lengthBefore, RT_STRING argument )
{
    if ( argument == before )
        rtStringAppendChars( string, ( *string )->chs, lengthBefore );
    else
        rtStringAppend( string, argument );
}

// What follows a percent sign.
template <class CHAR>
static void appendDirective( RT_STRING *string, RT_STRING before, int64_t lengthBefore, Format<CHAR> &format,
                             ArgList &list )
{
    if ( format.takes( "%" ) )
        rtStringAppendChar( string, '%' );
    else if ( format.takes( "s" ) )
        appendArgument( string, before, lengthBefore, va_arg( list.args, RT_STRING ) );
    else if ( format.takes( "~s" ) )
        rtStringAppend( string, rt::adopt( va_arg( list.args, RT_STRING ) ).get() );
    else if ( format.takes( ".*A" ) )
    {
        int64_t width = decimalWidth( va_arg( list.args, int64_t ) );
        appendInt( string, va_arg( list.args, int64_t ), width );
    }
    else
    {
        bool capitals = format.takes( "^" );
        int64_t width = format.takes( "0" ) ? format.takeNumber() : 1;
        int64_t radix = format.takes( "!" ) ? format.takeNumber() : 10;
        bool isInt = format.takes( "i" ) && radix >= 2 && radix <= 36;
        RT_CHECK( isInt, "no such format directive", "format" );
        appendInt( string, va_arg( list.args, int64_t ), width, static_cast<int>( radix ), capitals );
    }
}

template <class CHAR>
static void appendFormat( RT_STRING *string, const CHAR *chars, int64_t length, va_list args )
{
    RT_ASSERT( string );
    RT_ASSERT( *string );
    Format<CHAR> format = { chars, chars + lengthOf( chars, length ) };
    RT_STRING before = *string;
    int64_t lengthBefore = rtStringLength( before );
    ArgList list;
    va_copy( list.args, args );
    while ( format.at != format.end )
    {
        const CHAR *percent = std::find( format.at, format.end, CHAR( '%' ) );
        std::transform( format.at, percent, rt___StringExtend( string, percent - format.at ), widened<CHAR> );
        format.at = percent;
        if ( format.takes( "%" ) )
            appendDirective( string, before, lengthBefore, format, list );
    }
    va_end( list.args );
}

template <class CHAR>
static RT_STRING createFromFormat( const CHAR *format, int64_t length, va_list args )
{
    static constexpr int64_t usualArguments = 16;
    RT_STRING string = rt::newStringWithRoom( lengthOf( format, length ) + usualArguments );
    appendFormat( &string, format, length, args );
    return string;
}

RT_STRING rtStringCreateFromFormatCstr( const char *format, int64_t length, ... )
{
    va_list args;
    va_start( args, length );
    RT_STRING string = createFromFormat( format, length, args );
    va_end( args );
    return string;
}

RT_STRING rtStringCreateFromFormatCstrArgList( const char *format, int64_t length, va_list args )
{
    return createFromFormat( format, length, args );
}

RT_STRING rtStringCreateFromFormatWcstrArgList( const wchar_t *format, int64_t length, va_list args )
{
    return createFromFormat( format, length, args );
}

RT_STRING rtStringCreateFromFormatArgList( RT_STRING format, va_list args )
{
    Text text = rt::textOf( format );
    return createFromFormat( text.chs, text.length, args );
}

void rtStringAppendFormatCstr( RT_STRING *string, const char *format, int64_t length, ... )
{
    va_list args;
    va_start( args, length );
    appendFormat( string, format, length, args );
    va_end( args );
}
