// Timestamp value (RFC 3261, 25.1, Timestamp).
#include "telsx/telsx_timestamp_value.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxTimestampValueOk( RT_STRING timestampValue )
{
    TELSX_ASSERT( timestampValue );
    return covers( telsx___SkipTimestampValue, timestampValue );
}

// Any digits, then perhaps a dot and any digits after it.
static int64_t skipDecimal( Text text )
{
    Text rest = text;
    rest.take( telsx___SkipDigits );
    if ( rest.take( telsx___SkipChar( rest.chs, rest.length, '.' ) ) )
        rest.take( telsx___SkipDigits );
    return text.length - rest.length;
}

int64_t telsx___SkipTimestampValue( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    if ( !runOf<classDigit>( { chs, length } ) )
        return 0;
    Text rest = { chs, length };
    rest.take( skipDecimal( rest ) );
    if ( rest.take( telsx___SkipLws ) )
        rest.take( skipDecimal( rest ) );
    return length - rest.length;
}
