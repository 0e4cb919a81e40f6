// Quotable string (RFC 3261, 25.1).
#include "telsx/telsx_quotable_string.h"

#include <algorithm>

#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

static bool isLineEnd( RT_CHAR ch ) { return ch == RT_CHAR_CARRIAGE_RETURN || ch == RT_CHAR_LINE_FEED; }

RT_BOOL telsxQuotableStringOk( RT_STRING quotableString )
{
    TELSX_ASSERT( quotableString );
    Text text = textOf( quotableString );
    return std::none_of( text.chs, text.chs + text.length, isLineEnd );
}

RT_STRING telsx___QuotableStringEncode( RT_STRING quotableString )
{
    TELSX_ASSERT( quotableString );
    const RT_CHAR *backing = rtStringBacking( quotableString );
    int64_t length = rtStringLength( quotableString );
    Ref<RT_STRING> quoted = adopt( rtStringCreate() );
    rtStringAppendChar( quoted.address(), '"' );
    bool afterBareSpace = false;
    for ( int64_t i = 0; i < length; ++i )
    {
        TELSX_ASSERT( backing[i] != RT_CHAR_CARRIAGE_RETURN && backing[i] != RT_CHAR_LINE_FEED );
        RT_CHAR ch = backing[i];
        bool isControl = ch < 0x20 || ch == 0x7F;
        bool escaped = isControl || ch == '"' || ch == '\\' || ( ch == ' ' && afterBareSpace );
        if ( escaped )
            rtStringAppendChar( quoted.address(), '\\' );
        rtStringAppendChar( quoted.address(), ch );
        afterBareSpace = ch == ' ' && !escaped;
    }
    rtStringAppendChar( quoted.address(), '"' );
    return quoted.take();
}

RT_STRING telsx___QuotableStringTryDecode( const RT_CHAR *chs, int64_t length )
{
    if ( !length || telsx___SkipQuotedString( chs, length ) != length )
        return nullptr;
    Text inner = Text{ chs, length - 1 }.after( telsx___SkipLdquot( chs, length ) );
    auto untilBackslash = [&inner]
    { return std::find( inner.chs, inner.chs + inner.length, RT_CHAR( '\\' ) ) - inner.chs; };
    if ( untilBackslash() == inner.length )
        return inner.copy().take();
    Ref<RT_STRING> plain = adopt( rtStringCreate() );
    while ( inner )
    {
        Text run = inner.take( untilBackslash() );
        rtStringAppendChars( plain.address(), run.chs, run.length );
        if ( inner )
            rtStringAppendChar( plain.address(), inner.take( 2 ).chs[1] );
    }
    return plain.take();
}
