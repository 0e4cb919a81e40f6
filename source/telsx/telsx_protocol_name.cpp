// Protocol name (RFC 3261, 25.1).
#include "telsx/telsx_protocol_name.h"

#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxProtocolNameOk( RT_STRING protocolName )
{
    TELSX_ASSERT( protocolName );
    return covers( telsx___SkipProtocolName, protocolName );
}

RT_STRING telsxProtocolNameNormalize( RT_STRING protocolName )
{
    TELSX_ASSERT( telsxProtocolNameOk( protocolName ) );
    return upperCase( protocolName );
}
