// Text of a Reason value (RFC 3326, 2).
#include "telsx/telsx_reason_text.h"

#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_quotable_string.h"
#include "telsx/telsx_skip.h"

RT_BOOL telsxReasonTextOk( RT_STRING text )
{
    TELSX_ASSERT( text );
    return telsxQuotableStringOk( text );
}

int64_t telsx___SkipReasonText( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return telsx___SkipQuotedString( chs, length );
}
