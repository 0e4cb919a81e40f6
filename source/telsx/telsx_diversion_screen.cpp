// Diversion screen (RFC 5806, 4).
#include "telsx/telsx_diversion_screen.h"

#include "telsx/telsx_quoted.hpp"

using namespace telsx;

RT_BOOL telsxDiversionScreenOk( RT_STRING diversionScreen )
{
    TELSX_ASSERT( diversionScreen );
    return covers( telsx___SkipDiversionScreen, diversionScreen );
}

RT_STRING telsxDiversionScreenNormalize( RT_STRING diversionScreen )
{
    TELSX_ASSERT( diversionScreen );
    return lowerCase( diversionScreen );
}

RT_STRING telsx___DiversionScreenEncode( RT_STRING diversionScreen )
{
    TELSX_ASSERT( diversionScreen );
    return encodeTokenOrQuoted( diversionScreen );
}

RT_STRING telsx___DiversionScreenTryDecode( const RT_CHAR *chs, int64_t length )
{
    return tryDecodeTokenOrQuoted( { chs, length } );
}

int64_t telsx___SkipDiversionScreen( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipTokenOrQuoted( chs, length );
}
