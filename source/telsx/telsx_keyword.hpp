// The elements that are one of a few words, in any case: the whole of such a unit except the name and the words.
#pragma once

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

namespace telsx
{

// The length of the token at the start if it is one of the words, which must be in lower case.
template <rt::Ascii... WORD>
int64_t skipKeyword( Text text )
{
    Text token = text.first( runOf<classToken>( text ) );
    return findWordInAnyCase<WORD...>( token ) ? token.length : 0;
}

} // namespace telsx

// The three functions of the element NAME, with the name of their argument and the words.
#define TELSX_DEFINE_KEYWORD( NAME, ELEMENT, ... )                   \
    RT_BOOL telsx##NAME##Ok( RT_STRING ELEMENT )                     \
    {                                                                \
        TELSX_ASSERT( ELEMENT );                                     \
        return telsx::covers( telsx___Skip##NAME, ELEMENT );         \
    }                                                                \
    RT_STRING telsx##NAME##Normalize( RT_STRING ELEMENT )            \
    {                                                                \
        TELSX_ASSERT( telsx##NAME##Ok( ELEMENT ) );                  \
        return telsx::lowerCase( ELEMENT );                          \
    }                                                                \
    int64_t telsx___Skip##NAME( const RT_CHAR *chs, int64_t length ) \
    {                                                                \
        TELSX_ASSERT_CHARS( chs, length );                           \
        return telsx::skipKeyword<__VA_ARGS__>( { chs, length } );   \
    }
