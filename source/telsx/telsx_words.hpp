// Text of words with white space between them. A word consists of all code points above the blank except U+007F.
#pragma once

#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

namespace telsx
{

inline int64_t skipWord( const RT_CHAR *chs, int64_t length )
{
    int64_t at = 0;
    while ( at < length && chs[at] > ' ' && chs[at] != 0x7F )
        ++at;
    return at;
}

// Words up to the end of the last one, without the white space after it.
inline int64_t skipWords( Text text )
{
    Text rest = text;
    int64_t end = 0;
    while ( rest.take( skipWord ) )
    {
        end = text.length - rest.length;
        rest.take( telsx___SkipLws );
    }
    return end;
}

// Whether the text consists of words, or is empty, with any white space around them.
inline bool isWords( Text text )
{
    text.take( telsx___SkipLws );
    text.take( skipWords( text ) );
    text.take( telsx___SkipLws );
    return !text;
}

// The words of such a text with one blank between them, a new reference.
inline RT_STRING normalizeWords( RT_STRING string )
{
    Ref<RT_STRING> normal = adopt( rtStringCreate() );
    for ( Text rest = textOf( string ); rest; rest.take( telsx___SkipLws ) )
        if ( Ref<RT_STRING> word = rest.take( skipWord ).copy(); rtStringLength( word.get() ) )
            rtStringDelimitedAppendCharDelimiter( normal.address(), word.get(), ' ' );
    return normal.take();
}

} // namespace telsx
