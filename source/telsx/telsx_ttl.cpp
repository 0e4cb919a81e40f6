// Time to live of a multicast packet (RFC 3261, 25.1).
#include "telsx/telsx_ttl.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_number.hpp"

using namespace telsx;

RT_BOOL telsxTtlOk( int64_t ttl ) { return ttl >= 0 && ttl <= 255; }

RT_STRING telsx___TtlEncode( int64_t ttl )
{
    TELSX_ASSERT( telsxTtlOk( ttl ) );
    return encodeNumber( ttl );
}

int64_t telsx___TtlTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return tryDecodeNumber( { chs, length }, telsxTtlOk );
}

int64_t telsx___SkipTtl( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classDigit>( { chs, length } );
}
