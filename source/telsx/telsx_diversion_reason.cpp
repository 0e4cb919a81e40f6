// Diversion reason (RFC 5806, 4).
#include "telsx/telsx_diversion_reason.h"

#include "telsx/telsx_quoted.hpp"

using namespace telsx;

RT_BOOL telsxDiversionReasonOk( RT_STRING diversionReason )
{
    TELSX_ASSERT( diversionReason );
    return covers( telsx___SkipDiversionReason, diversionReason );
}

RT_STRING telsxDiversionReasonNormalize( RT_STRING diversionReason )
{
    TELSX_ASSERT( diversionReason );
    return lowerCase( diversionReason );
}

RT_STRING telsx___DiversionReasonEncode( RT_STRING diversionReason )
{
    TELSX_ASSERT( diversionReason );
    return encodeTokenOrQuoted( diversionReason );
}

RT_STRING telsx___DiversionReasonTryDecode( const RT_CHAR *chs, int64_t length )
{
    return tryDecodeTokenOrQuoted( { chs, length } );
}

int64_t telsx___SkipDiversionReason( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipTokenOrQuoted( chs, length );
}
