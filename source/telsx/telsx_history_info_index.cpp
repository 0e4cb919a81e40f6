// History-Info index (RFC 7044, 5).
#include "telsx/telsx_history_info_index.h"

#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxHistoryInfoIndexOk( RT_STRING index )
{
    TELSX_ASSERT( index );
    return covers( telsx___SkipHistoryInfoIndex, index );
}

int64_t telsx___SkipHistoryInfoIndex( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    for ( ;; )
    {
        Text number = rest.take( telsx___SkipDigits );
        if ( !number || ( number.length > 1 && number.chs[0] == '0' ) )
            return 0;
        if ( !rest || rest.chs[0] != '.' )
            return length - rest.length;
        rest.take( 1 );
    }
}
