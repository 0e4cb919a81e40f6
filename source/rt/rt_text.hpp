// Text to be read: how the libraries above measure and split it.
#pragma once

#include <string_view>

#include "rt/rt_frame.hpp"
#include "rt/rt_string.hpp"

namespace rt
{

// How many code points at the start of a text form an element; 0 for none.
using Skipper = int64_t ( * )( const RT_CHAR *chs, int64_t length );

// A text, or the part of it that is still to be read. Points into a string that somebody else holds.
struct Text
{
    const RT_CHAR *chs = nullptr;
    int64_t length = 0;

    explicit operator bool() const { return length != 0; }
    Ref<RT_STRING> copy() const { return adopt( rtStringCreateFromCharsCopy( chs, length ) ); }
    Text first( int64_t count ) const { return { chs, count }; }
    Text after( int64_t count ) const { return { chs + count, length - count }; }

    // What a decoder makes of the text.
    template <class RESULT>
    RESULT as( RESULT ( *decode )( const RT_CHAR *chs, int64_t length ) ) const
    {
        return decode( chs, length );
    }

    // Removes that many code points, or the element at the start, and returns them; empty if there is no element.
    Text take( int64_t count )
    {
        Text front = first( count );
        *this = after( count );
        return front;
    }
    Text take( Skipper skip ) { return take( skip( chs, length ) ); }
};

// Called for every piece of a text, so the fields are read in place.
inline Text textOf( RT_STRING string )
{
    if ( !string ) [[unlikely]]
        rtStringBacking( string ); // aborts
    return { string->chs, string->length };
}
inline Text textOf( const Ref<RT_STRING> &string ) { return textOf( string.get() ); }

// Whether the element is the whole text and the text isn't empty.
inline bool covers( Skipper skip, Text text )
{
    return text.length && skip( text.chs, text.length ) == text.length;
}
inline bool covers( Skipper skip, RT_STRING string ) { return covers( skip, textOf( string ) ); }

} // namespace rt
