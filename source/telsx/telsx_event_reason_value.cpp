// Reason of a subscription state (RFC 6665, 8.4).
#include "telsx/telsx_event_reason_value.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxEventReasonValueOk( RT_STRING eventReasonValue )
{
    TELSX_ASSERT( eventReasonValue );
    return covers( telsx___SkipEventReasonValue, eventReasonValue );
}

RT_STRING telsxEventReasonValueNormalize( RT_STRING eventReasonValue )
{
    TELSX_ASSERT( eventReasonValue );
    return telsxTokenNormalize( eventReasonValue );
}

int64_t telsx___SkipEventReasonValue( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
