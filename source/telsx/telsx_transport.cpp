// Transport (RFC 3261, 25.1).
#include "telsx/telsx_transport.hpp"

#include "telsx/telsx_char.hpp"

using namespace telsx;

RT_BOOL telsxTransportOk( RT_STRING transport )
{
    TELSX_ASSERT( transport );
    return covers( telsx___SkipTransport, transport );
}

RT_STRING telsxTransportNormalize( RT_STRING transport )
{
    TELSX_ASSERT( telsxTransportOk( transport ) );
    return transportInLowerCase( textOf( transport ) ).take();
}

int64_t telsx___SkipTransport( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
