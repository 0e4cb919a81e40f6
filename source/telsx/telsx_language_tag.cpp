// Language tag (RFC 3261, 25.1; RFC 5646, 2.1).
#include "telsx/telsx_language_tag.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxLanguageTagOk( RT_STRING languageTag )
{
    TELSX_ASSERT( languageTag );
    return covers( telsx___SkipLanguageTag, languageTag );
}

RT_STRING telsxLanguageTagNormalize( RT_STRING languageTag )
{
    TELSX_ASSERT( telsxLanguageTagOk( languageTag ) );
    return lowerCase( languageTag );
}

template <uint32_t MEMBERS>
static int64_t skipTag( Text text )
{
    static constexpr int64_t longest = 8;
    int64_t count = runOf<MEMBERS>( text );
    return count <= longest ? count : 0;
}

int64_t telsx___SkipLanguageTag( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    if ( !rest.take( skipTag<classAlpha>( rest ) ) )
        return 0;
    while ( rest && rest.chs[0] == '-' )
    {
        int64_t subtag = skipTag<classAlphanum>( rest.after( 1 ) );
        if ( !subtag )
            break;
        rest.take( 1 + subtag );
    }
    return length - rest.length;
}
