// Warn agent (RFC 3261, 25.1).
#include "telsx/telsx_warn_agent.h"

#include "telsx/telsx_host.h"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxWarnAgentOk( RT_STRING warnAgent )
{
    TELSX_ASSERT( warnAgent );
    return covers( telsx___SkipWarnAgent, warnAgent );
}

int64_t telsx___SkipWarnAgent( const RT_CHAR *chs, int64_t length )
{
    int64_t hostPort = telsx___SkipHostPort( chs, length );
    return hostPort ? hostPort : telsx___SkipPseudonym( chs, length );
}

int64_t telsx___SkipPseudonym( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipToken( chs, length );
}
