// Reason phrase (RFC 3261, 25.1).
#include "telsx/telsx_reason_phrase.h"

#include <algorithm>

#include "telsx/telsx_char.h"
#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxReasonPhraseOk( RT_STRING reasonPhrase )
{
    TELSX_ASSERT( reasonPhrase );
    return 1;
}

static bool needsEscape( RT_CHAR ch )
{
    return ch < 0x80 && !isIn( ch, classReserved | classUnreserved | classLws );
}

RT_STRING telsx___ReasonPhraseEncode( RT_STRING s )
{
    TELSX_ASSERT( s );
    Text rest = textOf( s );
    if ( std::none_of( rest.chs, rest.chs + rest.length, needsEscape ) )
        return share( s ).take();
    Ref<RT_STRING> encoded = adopt( rtStringCreate() );
    for ( ; rest; rest = rest.after( 1 ) )
        if ( needsEscape( rest.chs[0] ) )
            rtStringAppendFormatCstr( encoded.address(), "%%%^02!16i", -1,
                                      static_cast<int64_t>( rest.chs[0] ) );
        else
            rtStringAppendChar( encoded.address(), rest.chs[0] );
    return encoded.take();
}

RT_STRING telsx___ReasonPhraseDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    if ( std::find( chs, chs + length, RT_CHAR( '%' ) ) == chs + length )
        return rest.copy().take();
    Ref<RT_STRING> decoded = adopt( rtStringCreate() );
    while ( rest )
    {
        int64_t high = 0, low = 0;
        bool escaped = rest.chs[0] == '%' && rest.length > 2 && telsx___CharIsHexdig( rest.chs[1], &high )
                       && telsx___CharIsHexdig( rest.chs[2], &low );
        Text part = rest.take( escaped ? 3 : 1 );
        rtStringAppendChar( decoded.address(),
                            escaped ? static_cast<RT_CHAR>( high * 16 + low ) : part.chs[0] );
    }
    return decoded.take();
}
