// Endpoint identifier (MS-SIPREGE, 2.2.1; token as in RFC 3261, 25.1).
#include "telsx/telsx_epid.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxEpidOk( RT_STRING epid )
{
    TELSX_ASSERT( epid );
    return covers( telsx___SkipEpid, epid );
}

int64_t telsx___SkipEpid( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    static constexpr int64_t most = 16;
    return runOf<classToken>( { chs, rtIntMin( length, most ) } );
}
