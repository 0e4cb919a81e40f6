// Diversion counter (RFC 5806, 4).
#include "telsx/telsx_diversion_counter.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_number.hpp"

using namespace telsx;

RT_BOOL telsxDiversionCounterOk( int64_t diversionCounter )
{
    return diversionCounter >= 0 && diversionCounter <= 99;
}

RT_STRING telsx___DiversionCounterEncode( int64_t diversionCounter )
{
    TELSX_ASSERT( telsxDiversionCounterOk( diversionCounter ) );
    return encodeNumber( diversionCounter );
}

int64_t telsx___DiversionCounterTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return tryDecodeNumber( { chs, length }, telsxDiversionCounterOk );
}

int64_t telsx___SkipDiversionCounter( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t digits = runOf<classDigit>( { chs, length } );
    return digits <= 2 ? digits : 0;
}
