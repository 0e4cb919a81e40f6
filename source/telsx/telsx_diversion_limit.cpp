// Diversion limit (RFC 5806, 4).
#include "telsx/telsx_diversion_limit.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_number.hpp"

using namespace telsx;

RT_BOOL telsxDiversionLimitOk( int64_t diversionLimit )
{
    return diversionLimit >= 0 && diversionLimit <= 99;
}

RT_STRING telsx___DiversionLimitEncode( int64_t diversionLimit )
{
    TELSX_ASSERT( telsxDiversionLimitOk( diversionLimit ) );
    return encodeNumber( diversionLimit );
}

int64_t telsx___DiversionLimitTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return tryDecodeNumber( { chs, length }, telsxDiversionLimitOk );
}

int64_t telsx___SkipDiversionLimit( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t digits = runOf<classDigit>( { chs, length } );
    return digits <= 2 ? digits : 0;
}
