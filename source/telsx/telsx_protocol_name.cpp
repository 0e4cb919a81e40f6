// Protocol name (RFC 3261, 25.1).
#include "telsx/telsx_protocol_name.h"

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxProtocolNameOk( RT_STRING protocolName )
{
    return covers( telsx___SkipProtocolName, protocolName );
}

RT_STRING telsxProtocolNameNormalize( RT_STRING protocolName )
{
    TELSX_ASSERT( telsxProtocolNameOk( protocolName ) );
    return upperCase( protocolName );
}

int64_t telsx___SkipProtocolName( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipToken( chs, length );
}
