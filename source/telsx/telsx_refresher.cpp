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
    int64_t uac = skipWordInAnyCase( { chs, length }, literal<"uac">() );
    return uac ? uac : skipWordInAnyCase( { chs, length }, literal<"uas">() );
}
