// Protocol version (RFC 3261, 25.1).
#include "telsx/telsx_protocol_version.h"

#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxProtocolVersionOk( RT_STRING protocolVersion )
{
    TELSX_ASSERT( protocolVersion );
    return covers( telsx___SkipProtocolVersion, protocolVersion );
}

RT_STRING telsxProtocolVersionNormalize( RT_STRING protocolVersion )
{
    TELSX_ASSERT( telsxProtocolVersionOk( protocolVersion ) );
    return lowerCase( protocolVersion );
}
