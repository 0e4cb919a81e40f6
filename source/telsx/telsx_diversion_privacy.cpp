// Diversion privacy (RFC 5806, 4).
#include "telsx/telsx_diversion_privacy.h"

#include "telsx/telsx_quoted.hpp"

using namespace telsx;

RT_BOOL telsxDiversionPrivacyOk( RT_STRING diversionPrivacy )
{
    TELSX_ASSERT( diversionPrivacy );
    return covers( telsx___SkipDiversionPrivacy, diversionPrivacy );
}

RT_STRING telsxDiversionPrivacyNormalize( RT_STRING diversionPrivacy )
{
    TELSX_ASSERT( diversionPrivacy );
    return lowerCase( diversionPrivacy );
}

RT_STRING telsx___DiversionPrivacyEncode( RT_STRING diversionPrivacy )
{
    TELSX_ASSERT( diversionPrivacy );
    return encodeTokenOrQuoted( diversionPrivacy );
}

RT_STRING telsx___DiversionPrivacyTryDecode( const RT_CHAR *chs, int64_t length )
{
    return tryDecodeTokenOrQuoted( { chs, length } );
}

int64_t telsx___SkipDiversionPrivacy( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipTokenOrQuoted( chs, length );
}
