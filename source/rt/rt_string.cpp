// Strings. The text stands behind the string's structure, in the same block, or is a part of another
// string's.
#include "rt/rt_string.h"

#include <unicase.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string_view>

#include "rt/rt_blocks.hpp"
#include "rt/rt_format.h"
#include "rt/rt_memory.hpp"
#include "rt/rt_scan.hpp"
#include "rt/rt_string.hpp"
#include "rt/rt_text.hpp"
#include "rt/rt_vector.h"

using rt::Ref;
using rt::Text;

static void freeFunc( RT_OBJ obj )
{
    RT_STRING string = rtStringFrom( obj );
    if ( string->parent )
        rtStringRelease( string->parent );
}

static int64_t compareFunc( RT_OBJ objA, RT_OBJ objB )
{
    RT_STRING a = rtStringFrom( objA ), b = rtStringFrom( objB );
    auto order =
        std::lexicographical_compare_three_way( a->chs, a->chs + a->length, b->chs, b->chs + b->length );
    return order < 0 ? -1 : order > 0;
}

static RT_STRING toStringFunc( RT_OBJ obj ) { return rt::share( rtStringFrom( obj ) ).take(); }

constexpr RT_SORT_ rt___sort_RT_STRING = { RT_STATIC_OBJECT, nullptr,      "RT_STRING", freeFunc,
                                           compareFunc,      toStringFunc, {} };
RT_DEFINE_OPERATIONS( rt, String, RT_STRING )

// The length of a text argument, whose -1 means up to the zero.
template <class CHAR>
static int64_t lengthOf( const CHAR *chars, int64_t length )
{
    RT_ASSERT( length >= -1 );
    RT_ASSERT( chars || length == 0 );
    if ( length != -1 )
        return length;
    if constexpr ( std::is_same_v<CHAR, char> )
        return static_cast<int64_t>( std::strlen( chars ) );
    while ( chars[++length] )
        ;
    return length;
}

template <class CHAR>
static RT_CHAR widened( CHAR ch )
{
    return static_cast<std::make_unsigned_t<CHAR>>( ch );
}

template <class CHAR>
static RT_STRING createFrom( const CHAR *chars, int64_t length )
{
    length = lengthOf( chars, length );
    if ( length == 0 )
        return rtStringCreate();
    RT_STRING string;
    RT_CHAR *into = rt::newString( length, &string );
    if constexpr ( std::is_same_v<CHAR, RT_CHAR> )
        std::memcpy( into, chars, static_cast<std::size_t>( length ) * sizeof( RT_CHAR ) );
    else if constexpr ( std::is_same_v<CHAR, char> )
        rt::widenExactly( chars, length, into );
    else
        std::transform( chars, chars + length, into, widened<CHAR> );
    return string;
}

RT_STRING rtStringCreate( void ) { return rt::literal<"">(); }

RT_STRING rtStringCreateFromCstr( const char *chars, int64_t length ) { return createFrom( chars, length ); }

RT_STRING rtStringCreateFromWcstr( const wchar_t *chars, int64_t length )
{
    return createFrom( chars, length );
}

RT_STRING rtStringCreateFromCharsCopy( const RT_CHAR *chs, int64_t length )
{
    if ( !chs || length <= 0 )
        return createFrom( chs, length );
    RT_STRING string;
    std::memcpy( rt::newString( length, &string ), chs,
                 static_cast<std::size_t>( length ) * sizeof( RT_CHAR ) );
    return string;
}

// A part shares the text unless it is so small that a copy is as cheap, or would keep alive more than it
// needs.
RT_STRING rtStringCreateFromInner( RT_STRING string, int64_t offset, int64_t length )
{
    RT_ASSERT( string );
    RT_ASSERT( offset >= 0 && offset <= string->length );
    RT_ASSERT( length >= -1 && length <= string->length - offset );
    static constexpr int64_t leastShared = 16, mostHeld = 4;
    if ( length == -1 )
        length = string->length - offset;
    if ( length == string->length )
        return rt::share( string ).take();
    RT_STRING holder = string->parent ? string->parent : string;
    bool isLiteral = string->capacity == 0 && !string->parent;
    bool worthIt = length >= leastShared && std::max( holder->length, holder->capacity ) / mostHeld <= length;
    if ( !worthIt && !( isLiteral && length ) )
        return createFrom( string->chs + offset, length );
    auto *part = reinterpret_cast<RT_STRING>( rt___ObjCreate( sizeof( RT_STRING_ ), &rt___sort_RT_STRING ) );
    part->chs = string->chs + offset;
    part->length = length;
    part->capacity = 0;
    part->parent = isLiteral ? nullptr : rt::share( holder ).take();
    return part;
}

const RT_CHAR *rtStringBacking( RT_STRING string )
{
    RT_ASSERT( string );
    return string->chs;
}

int64_t rtStringLength( RT_STRING string )
{
    RT_ASSERT( string );
    return string->length;
}

RT_CHAR rtStringCharAt( RT_STRING string, int64_t index )
{
    RT_ASSERT( string );
    RT_ASSERT( index >= 0 && index < string->length );
    return string->chs[index];
}

RT_BOOL rtStringBeginsWithChar( RT_STRING string, RT_CHAR ch )
{
    RT_ASSERT( string );
    return string->length && string->chs[0] == ch;
}

RT_BOOL rtStringEqualsChars( RT_STRING string, const RT_CHAR *chs, int64_t length )
{
    RT_ASSERT( string );
    length = lengthOf( chs, length );
    return length == string->length && std::equal( chs, chs + length, string->chs );
}

int64_t rtStringFindChars( RT_STRING string, int64_t offset, const RT_CHAR *chs, int64_t length )
{
    RT_ASSERT( string );
    RT_ASSERT( offset >= 0 && offset <= string->length );
    length = lengthOf( chs, length );
    const RT_CHAR *end = string->chs + string->length;
    const RT_CHAR *at = std::search( string->chs + offset, end, chs, chs + length );
    return at == end && length ? -1 : at - string->chs;
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

// The code points of a string that nobody else holds, with room for that many; they may be written.
static RT_CHAR *own( RT_STRING *handle, int64_t capacity )
{
    RT_ASSERT( handle );
    RT_ASSERT( *handle );
    RT_STRING string = *handle;
    bool isPrivate = string->capacity && !rt::shared( rt::asObj( string ) );
    if ( isPrivate && string->capacity >= capacity )
        return string->inner();
    if ( isPrivate )
    {
        capacity = rt::grown( string->capacity, capacity );
        RT_CHECK( capacity <= rt::mostChars, "out of memory", "capacity" );
        string = reinterpret_cast<RT_STRING>( rt::growBlock(
            rt::asObj( string ), static_cast<int64_t>( sizeof( RT_STRING_ ) ) + capacity * 4 ) );
        string->chs = string->inner();
        string->capacity = rt::innerCapacity( string );
        *handle = string;
        return string->inner();
    }
    RT_STRING copy;
    RT_CHAR *chs = rt::newString( capacity, &copy );
    copy->length = string->length;
    rt::copyItems( chs, string->chs, string->length );
    *handle = copy;
    rtStringRelease( string );
    return chs;
}

RT_CHAR *rt___StringExtend( RT_STRING *string, int64_t count )
{
    RT_ASSERT( string );
    RT_ASSERT( *string );
    int64_t length = ( *string )->length;
    RT_CHECK( count <= rt::mostChars - length, "out of memory", "count" );
    // A text that begins goes on, most times.
    static constexpr int64_t usual = 48;
    RT_CHAR *chs = own( string, length == 0 && count < usual ? usual : length + count );
    ( *string )->length = length + count;
    return chs + length;
}

void rtStringAppend( RT_STRING *string, RT_STRING other )
{
    RT_ASSERT( string );
    RT_ASSERT( *string );
    RT_ASSERT( other );
    if ( ( *string )->length == 0 && ( *string )->capacity < other->length )
    {
        auto old = rt::adopt( std::exchange( *string, rt::share( other ).take() ) );
        return;
    }
    rtStringAppendChars( string, other->chs, other->length );
}

void rtStringAppendChar( RT_STRING *string, RT_CHAR ch ) { *rt___StringExtend( string, 1 ) = ch; }

void rtStringAppendChars( RT_STRING *string, const RT_CHAR *chs, int64_t length )
{
    RT_ASSERT( string );
    RT_ASSERT( *string );
    length = lengthOf( chs, length );
    // A part of the string itself must outlive the string's move.
    bool isOwnPart = chs >= ( *string )->chs && chs < ( *string )->chs + ( *string )->length;
    Ref<RT_STRING> source = isOwnPart ? rt::share( *string ) : Ref<RT_STRING>();
    rt::copyItems( rt___StringExtend( string, length ), chs, length );
}

void rtStringAppendCstr( RT_STRING *string, const char *chars, int64_t length )
{
    length = lengthOf( chars, length );
    std::transform( chars, chars + length, rt___StringExtend( string, length ), widened<char> );
}

void rtStringDelimitedAppendCharDelimiter( RT_STRING *string, RT_STRING item, RT_CHAR ch )
{
    // The item may be the string itself.
    Ref<RT_STRING> held = rt::share( item );
    if ( rtStringLength( *string ) )
        rtStringAppendChar( string, ch );
    rtStringAppend( string, item );
}

void rtStringSetCharAt( RT_STRING *string, int64_t index, RT_CHAR ch )
{
    RT_ASSERT( string );
    RT_ASSERT( *string );
    RT_ASSERT( index >= 0 && index < ( *string )->length );
    own( string, ( *string )->length )[index] = ch;
}

static RT_CHAR lower( RT_CHAR ch )
{
    if ( ch < 0x80 )
        return ch >= 'A' && ch <= 'Z' ? ch + 0x20 : ch;
    return RT_CHAR_OK( ch ) ? uc_tolower( ch ) : ch;
}

static RT_CHAR upper( RT_CHAR ch )
{
    if ( ch < 0x80 )
        return ch >= 'a' && ch <= 'z' ? ch - 0x20 : ch;
    return RT_CHAR_OK( ch ) ? uc_toupper( ch ) : ch;
}

// Text that has the case already is left as it is, also where others hold it.
static void mapCase( RT_STRING *handle, RT_CHAR ( *map )( RT_CHAR ) )
{
    RT_ASSERT( handle );
    RT_ASSERT( *handle );
    RT_STRING string = *handle;
    const RT_CHAR *end = string->chs + string->length;
    const RT_CHAR *changes =
        std::find_if( string->chs, end, [map]( RT_CHAR ch ) { return map( ch ) != ch; } );
    if ( changes == end )
        return;
    int64_t at = changes - string->chs, length = string->length;
    RT_CHAR *chs = own( handle, length );
    std::transform( chs + at, chs + length, chs + at, map );
}

void rtStringToLower( RT_STRING *string ) { mapCase( string, lower ); }

void rtStringToUpper( RT_STRING *string ) { mapCase( string, upper ); }

int64_t rt___UnicodeUpperCaseDbLookup( RT_CHAR ch, RT_CHAR *mapping )
{
    RT_ASSERT( mapping );
    RT_CHAR mapped = upper( ch );
    if ( mapped == ch )
        return 0;
    *mapping = mapped;
    return 1;
}

RT_VECTOR rtStringSplitChar( RT_STRING string, RT_CHAR ch, int64_t maxParts )
{
    return rtStringSplitChars( string, &ch, 1, maxParts );
}

RT_VECTOR rtStringSplitChars( RT_STRING string, const RT_CHAR *chs, int64_t length, int64_t maxParts )
{
    RT_ASSERT( string );
    length = lengthOf( chs, length );
    RT_ASSERT( length > 0 );
    RT_ASSERT( maxParts > 0 || maxParts == -1 );
    Ref<RT_VECTOR> parts = rt::adopt( rtVectorCreate() );
    int64_t start = 0, end = 0;
    while ( end != -1 )
    {
        end = maxParts != -1 && rtVectorLength( parts.get() ) == maxParts - 1
                  ? -1
                  : rtStringFindChars( string, start, chs, length );
        Ref<RT_STRING> part =
            rt::adopt( rtStringCreateFromInner( string, start, end == -1 ? -1 : end - start ) );
        rtVectorAppendString( parts.address(), part.get() );
        start = end + length;
    }
    return parts.take();
}

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
        for ( ; at != end && *at >= CHAR( '0' ) && *at <= CHAR( '9' ); ++at )
            number = number * 10 + static_cast<int64_t>( *at - CHAR( '0' ) );
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
        std::transform( digits, end, digits,
                        []( char ch ) { return ch >= 'a' ? static_cast<char>( ch - 0x20 ) : ch; } );
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

// What stands behind a percent sign.
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
    RT_STRING string;
    rt::newString( lengthOf( format, length ) + usualArguments, &string );
    string->length = 0;
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
