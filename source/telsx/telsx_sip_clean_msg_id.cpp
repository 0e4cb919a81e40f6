// Message id of a Referred-By token, without its quotes (RFC 3892, 3).
#include "telsx/telsx_sip_clean_msg_id.h"

#include "telsx/telsx_host.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxSipCleanMsgIdOk( RT_STRING sipCleanMsgId )
{
    TELSX_ASSERT( sipCleanMsgId );
    return covers( telsx___SkipSipCleanMsgId, sipCleanMsgId );
}

int64_t telsx___SkipSipCleanMsgId( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    if ( !rest.take( telsx___SkipDotAtom ) || !rest.take( telsx___SkipChar( rest.chs, rest.length, '@' ) ) )
        return 0;
    int64_t right =
        rtIntMax( telsx___SkipDotAtom( rest.chs, rest.length ), telsx___SkipHost( rest.chs, rest.length ) );
    return right ? length - rest.length + right : 0;
}
