// Elements that are a token or a quoted string on the wire, and plain text in objects.
#pragma once

#include "telsx/telsx_host.h"
#include "telsx/telsx_quotable_string.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

namespace telsx
{

inline int64_t skipTokenOrQuoted( const RT_CHAR *chs, int64_t length )
{
    int64_t token = telsx___SkipToken( chs, length );
    return token ? token : telsx___SkipQuotedString( chs, length );
}

inline RT_STRING encodeTokenOrQuoted( RT_STRING plain )
{
    return telsxTokenOk( plain ) ? share( plain ).take() : telsx___QuotableStringEncode( plain );
}

// The plain text of the whole element, a new reference, or null.
inline RT_STRING tryDecodeTokenOrQuoted( Text text )
{
    if ( covers( telsx___SkipToken, text ) )
        return text.copy().take();
    return telsx___QuotableStringTryDecode( text.chs, text.length );
}

// Takes the element at the start, a new reference; null for bad text.
inline Ref<RT_STRING> takeTokenOrQuoted( Text &rest )
{
    return adopt( tryDecodeTokenOrQuoted( rest.take( skipTokenOrQuoted ) ) );
}

// The same with an IPv6 reference, which is the only host that is not a token, as a third form (RFC 3261, 25.1,
// gen-value).
inline int64_t skipGenValue( const RT_CHAR *chs, int64_t length )
{
    int64_t reference = telsx___SkipIpV6Reference( chs, length );
    return reference ? reference : skipTokenOrQuoted( chs, length );
}

inline RT_STRING encodeGenValue( RT_STRING plain )
{
    return covers( telsx___SkipIpV6Reference, plain ) ? share( plain ).take() : encodeTokenOrQuoted( plain );
}

inline RT_STRING tryDecodeGenValue( const RT_CHAR *chs, int64_t length )
{
    Text text = { chs, length };
    return covers( telsx___SkipIpV6Reference, text ) ? text.copy().take() : tryDecodeTokenOrQuoted( text );
}

} // namespace telsx
