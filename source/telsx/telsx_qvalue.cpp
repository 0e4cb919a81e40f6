// Qvalue (RFC 3261, 25.1).
#include "telsx/telsx_qvalue.h"

#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_number.hpp"

using namespace telsx;

RT_BOOL telsxQvalueOk( int64_t qvalue ) { return qvalue >= 0 && qvalue <= 1000; }

RT_STRING telsx___QvalueEncode( int64_t qvalue )
{
    TELSX_ASSERT( telsxQvalueOk( qvalue ) );
    return rtStringCreateFromFormatCstr( "%01i.%03i", -1, qvalue / 1000, qvalue % 1000 );
}

int64_t telsx___QvalueTryDecode( const RT_CHAR *chs, int64_t length )
{
    if ( telsx___SkipQvalue( chs, length ) != length )
        return -1;
    int64_t qvalue = 0;
    for ( int64_t digit = 0, at = 0; digit < 4; ++digit, at = digit + 1 )
        qvalue = qvalue * 10 + ( at < length ? chs[at] - '0' : 0 );
    return qvalue;
}

int64_t telsx___SkipQvalue( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    if ( length == 0 || ( chs[0] != '0' && chs[0] != '1' ) )
        return 0;
    if ( length == 1 || chs[1] != '.' )
        return 1;
    RT_CHAR largest = chs[0] == '0' ? '9' : '0';
    int64_t at = 2;
    while ( at < length && at < 5 && chs[at] >= '0' && chs[at] <= largest )
        ++at;
    return at;
}
