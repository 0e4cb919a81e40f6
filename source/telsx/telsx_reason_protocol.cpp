// Protocol of a Reason value (RFC 3326, 2).
#include "telsx/telsx_reason_protocol.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxReasonProtocolOk( RT_STRING protocol )
{
    TELSX_ASSERT( protocol );
    return covers( telsx___SkipReasonProtocol, protocol );
}

int64_t telsx___SkipReasonProtocol( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
