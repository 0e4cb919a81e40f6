// Text of a Warning value (RFC 3261, 25.1).
#include "telsx/telsx_warn_text.h"

#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_quotable_string.h"
#include "telsx/telsx_skip.h"

using namespace telsx;

RT_BOOL telsxWarnTextOk( RT_STRING warnText )
{
    TELSX_ASSERT( warnText );
    return telsxQuotableStringOk( warnText );
}

int64_t telsx___SkipWarnText( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return telsx___SkipQuotedString( chs, length );
}
