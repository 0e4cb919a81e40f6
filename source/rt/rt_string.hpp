// The layout of a string, for units that make strings in place or need one at compile time.
#pragma once

#include "rt/rt_frame.hpp"
#include "rt/rt_string.h"

struct RT_STRING_
{
    RT_OBJECT object;
    const RT_CHAR *chs;
    int64_t length;
    int64_t capacity; // of the text after this structure; 0 if the text is elsewhere
    RT_STRING parent; // keeps a text elsewhere alive; null for a literal

    RT_CHAR *inner() { return reinterpret_cast<RT_CHAR *>( this + 1 ); }
};

namespace rt
{

// The length of the longest string: the rounded size of its block must not overflow.
inline constexpr int64_t mostChars = ( PTRDIFF_MAX - 128 ) / 4;

// How many code points fit into the string's block.
inline int64_t innerCapacity( RT_STRING string )
{
    return ( string->object.size - static_cast<int64_t>( sizeof( RT_STRING_ ) ) )
           / static_cast<int64_t>( sizeof( RT_CHAR ) );
}

// A new string of that length; the reference goes to the second argument. The caller must write its code points at
// once.
inline RT_CHAR *newString( int64_t length, RT_STRING *string )
{
    RT_CHECK( length >= 0 && length <= mostChars, "out of memory", "length" );
    auto *made = reinterpret_cast<RT_STRING>(
        createObject( static_cast<int64_t>( sizeof( RT_STRING_ ) ) + length * 4, &rt___sort_RT_STRING ) );
    made->chs = made->inner();
    made->length = length;
    made->capacity = innerCapacity( made );
    made->parent = nullptr;
    *string = made;
    return made->inner();
}

// An empty string that grows to that length without moving, a new reference.
inline RT_STRING newStringWithRoom( int64_t length )
{
    RT_STRING string;
    newString( length, &string );
    string->length = 0;
    return string;
}

// The length of a text argument, whose -1 means up to the zero.
template <class CHAR>
int64_t lengthOf( const CHAR *chars, int64_t length )
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
RT_CHAR widened( CHAR ch )
{
    return static_cast<std::make_unsigned_t<CHAR>>( ch );
}

// ASCII text as a constant of code points, for the parameter of a template.
template <std::size_t SIZE>
struct Ascii
{
    RT_CHAR chs[SIZE];

    consteval Ascii( const char ( &text )[SIZE] ) : chs()
    {
        for ( std::size_t i = 0; i < SIZE; ++i )
            chs[i] = static_cast<unsigned char>( text[i] );
    }
};

// A static string, which is never counted, copied or freed: rt::literal<"Via">().
template <Ascii TEXT>
inline constexpr RT_STRING_ literalObject = {
    { &rt___sort_RT_STRING, RT_COUNT_IMMORTAL, 0 }, TEXT.chs, std::size( TEXT.chs ) - 1, 0, nullptr
};

template <Ascii TEXT>
constexpr RT_STRING literal()
{
    return const_cast<RT_STRING>( &literalObject<TEXT> );
}

} // namespace rt
