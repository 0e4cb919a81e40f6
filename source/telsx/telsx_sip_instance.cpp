// SIP instance (RFC 5626, 10).
#include "telsx/telsx_sip_instance.h"

#include "telsx/telsx_iri.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxSipInstanceOk( RT_STRING sipInstance )
{
    TELSX_ASSERT( sipInstance );
    return covers( telsx___SkipSipInstance, sipInstance );
}

int64_t telsx___SkipSipInstance( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    if ( !rest.take( telsx___SkipChar( chs, length, '<' ) ) || !rest.take( telsx___SkipUric ) )
        return 0;
    return rest.take( telsx___SkipChar( rest.chs, rest.length, '>' ) ) ? length - rest.length : 0;
}
