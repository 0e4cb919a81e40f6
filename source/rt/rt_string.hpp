// The inside of a string, for units that make strings in place or need one at compile time.
#pragma once

#include "rt/rt_frame.hpp"
#include "rt/rt_string.h"

struct RT_STRING_
{
    RT_OBJECT object;
    const RT_CHAR *chs;
    int64_t length;
    int64_t capacity; // of the text behind this structure; 0 if the text is elsewhere
    RT_STRING parent; // what holds a text elsewhere alive; null for a literal

    RT_CHAR *inner() { return reinterpret_cast<RT_CHAR *>( this + 1 ); }
};

namespace rt
{

// The length of the longest string: the size of its block, rounded up, is still a number.
inline constexpr int64_t mostChars = ( PTRDIFF_MAX - 128 ) / 4;

// How many code points fit into the string's block.
inline int64_t innerCapacity( RT_STRING string )
{
    return ( string->object.size - static_cast<int64_t>( sizeof( RT_STRING_ ) ) )
           / static_cast<int64_t>( sizeof( RT_CHAR ) );
}

// A string of that length, a new reference in the second argument. The caller writes its code points at once.
inline RT_CHAR *newString( int64_t length, RT_STRING *string )
{
    RT_CHECK( length >= 0 && length <= mostChars, "out of memory", "length" );
    auto *made = reinterpret_cast<RT_STRING>(
        rt___ObjCreate( static_cast<int64_t>( sizeof( RT_STRING_ ) ) + length * 4, &rt___sort_RT_STRING ) );
    made->chs = made->inner();
    made->length = length;
    made->capacity = innerCapacity( made );
    made->parent = nullptr;
    *string = made;
    return made->inner();
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

// A string that exists from load on and is never counted, copied or freed: rt::literal<"Via">().
template <Ascii TEXT>
inline constexpr RT_STRING_ literalObject = {
    { &rt___sort_RT_STRING, RT_COUNT_IMMORTAL, 0 }, TEXT.chs, std::size( TEXT.chs ) - 1, 0, nullptr
};

template <Ascii TEXT>
RT_STRING literal()
{
    return const_cast<RT_STRING>( &literalObject<TEXT> );
}

} // namespace rt
