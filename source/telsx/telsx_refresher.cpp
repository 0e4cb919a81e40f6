// Refresher (RFC 4028, 4, refresher-param).
#include "telsx/telsx_refresher.h"

#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxRefresherOk( RT_STRING refresher )
{
    TELSX_ASSERT( refresher );
    return covers( telsx___SkipRefresher, refresher );
}

RT_STRING telsxRefresherNormalize( RT_STRING refresher )
{
    TELSX_ASSERT( telsxRefresherOk( refresher ) );
    return lowerCase( refresher );
}

int64_t telsx___SkipRefresher( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text text = { chs, length };
    return beginsInAnyCase<"uac">( text ) || beginsInAnyCase<"uas">( text ) ? 3 : 0;
}
