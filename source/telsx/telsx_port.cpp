// Port (RFC 3261, 25.1).
#include "telsx/telsx_port.h"

#include "rsc/rsc.h"
#include "telsx/telsx_number.hpp"

using namespace telsx;

RT_BOOL telsxPortOk( int64_t port ) { return port >= 0; }

RT_STRING telsx___PortEncode( int64_t port )
{
    TELSX_ASSERT( telsxPortOk( port ) );
    return encodeNumber( port );
}

int64_t telsx___PortTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return tryDecodeNumber( { chs, length }, telsxPortOk );
}

int64_t telsx___SkipPort( const RT_CHAR *chs, int64_t length ) { return rsc___SkipPort( chs, length ); }
