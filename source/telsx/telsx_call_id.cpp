// Call id (RFC 3261, 25.1).
#include "telsx/telsx_call_id.h"

#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxCallIdOk( RT_STRING callId )
{
    TELSX_ASSERT( callId );
    return covers( telsx___SkipCallId, callId );
}

int64_t telsx___SkipCallId( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    if ( !rest.take( telsx___SkipWord ) )
        return 0;
    if ( rest.take( telsx___SkipChar( rest.chs, rest.length, '@' ) ) && !rest.take( telsx___SkipWord ) )
        return 0;
    return length - rest.length;
}
