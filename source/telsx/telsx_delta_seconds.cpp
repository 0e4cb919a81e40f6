// Delta seconds (RFC 3261, 25.1).
#include "telsx/telsx_delta_seconds.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_number.hpp"

using namespace telsx;

RT_BOOL telsxDeltaSecondsOk( int64_t deltaSeconds ) { return deltaSeconds >= 0; }

RT_STRING telsx___DeltaSecondsEncode( int64_t deltaSeconds )
{
    TELSX_ASSERT( telsxDeltaSecondsOk( deltaSeconds ) );
    return encodeNumber( deltaSeconds );
}

int64_t telsx___DeltaSecondsTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return tryDecodeNumber( { chs, length }, telsxDeltaSecondsOk );
}

int64_t telsx___SkipDeltaSeconds( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classDigit>( { chs, length } );
}
