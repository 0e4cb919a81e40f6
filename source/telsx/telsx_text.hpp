// What the units need of text: the reading end of rt/rt_text.hpp, and strings from callers' characters.
#pragma once

#include "rt/rt_string.hpp"
#include "rt/rt_text.hpp"
#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_skip.h"

namespace telsx
{

using rt::covers;
using rt::literal;
using rt::Skipper;
using rt::Text;
using rt::textOf;

// The string of a Cstr or a Wcstr argument.
inline Ref<RT_STRING> text( const char *chars, int64_t length )
{
    return adopt( rtStringCreateFromCstr( chars, length ) );
}
inline Ref<RT_STRING> text( const wchar_t *chars, int64_t length )
{
    return adopt( rtStringCreateFromWcstr( chars, length ) );
}

// The string in lower or upper case, a new reference; the string itself stays as it is.
inline RT_STRING lowerCase( RT_STRING string )
{
    Ref<RT_STRING> lower = share( string );
    rtStringToLower( lower.address() );
    return lower.take();
}
inline RT_STRING upperCase( RT_STRING string )
{
    Ref<RT_STRING> upper = share( string );
    rtStringToUpper( upper.address() );
    return upper.take();
}

// The string of a text that usually is one of the words, which are constants.
template <rt::Ascii... WORD>
Ref<RT_STRING> stringOfWord( Text text )
{
    RT_STRING found = nullptr;
    (void)( ( rtStringEqualsChars( literal<WORD>(), text.chs, text.length ) && ( found = literal<WORD>() ) )
            || ... );
    return found ? adopt( found ) : text.copy();
}

// The length of the word if the text begins with it, its letters in any case, else 0.
inline int64_t skipWordInAnyCase( Text text, RT_STRING word )
{
    return telsx___SkipCharsAsciiCaseFold( text.chs, text.length, rtStringBacking( word ),
                                           rtStringLength( word ) );
}

// Elements with single dots between them; a dot that no element follows is left alone.
inline int64_t skipDotted( Text text, Skipper skipElement )
{
    int64_t at = skipElement( text.chs, text.length );
    while ( at && at < text.length && text.chs[at] == '.' )
    {
        Text rest = text.behind( at + 1 );
        int64_t element = skipElement( rest.chs, rest.length );
        if ( !element )
            break;
        at += 1 + element;
    }
    return at;
}

} // namespace telsx
