// Elements that are a token or a quoted string on the wire, and plain text in objects.
#pragma once

#include "telsx/telsx_quotable_string.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

namespace telsx
{

inline int64_t skipTokenOrQuoted( Text text )
{
    int64_t token = telsx___SkipToken( text.chs, text.length );
    return token ? token : telsx___SkipQuotedString( text.chs, text.length );
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

} // namespace telsx
