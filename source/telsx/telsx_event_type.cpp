// Event type (RFC 6665, 8.4).
#include "telsx/telsx_event_type.h"

#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token_nodot.h"

using namespace telsx;

RT_BOOL telsxEventTypeOk( RT_STRING eventType )
{
    TELSX_ASSERT( eventType );
    return covers( telsx___SkipEventType, eventType );
}

int64_t telsx___SkipEventType( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipDotted( { chs, length }, telsx___SkipTokenNodot );
}
