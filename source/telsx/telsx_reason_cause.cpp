// Cause of a Reason value (RFC 3326, 2, reason-params).
#include "telsx/telsx_reason_cause.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxReasonCauseOk( RT_STRING cause )
{
    TELSX_ASSERT( cause );
    return covers( telsx___SkipReasonCause, cause );
}

int64_t telsx___SkipReasonCause( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classDigit>( { chs, length } );
}
