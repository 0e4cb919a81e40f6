// Protocol version (RFC 3261, 25.1).
#include "telsx/telsx_protocol_version.h"

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxProtocolVersionOk( RT_STRING protocolVersion )
{
    return covers( telsx___SkipProtocolVersion, protocolVersion );
}

RT_STRING telsxProtocolVersionNormalize( RT_STRING protocolVersion )
{
    TELSX_ASSERT( telsxProtocolVersionOk( protocolVersion ) );
    return lowerCase( protocolVersion );
}

int64_t telsx___SkipProtocolVersion( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipToken( chs, length );
}
