// Warn agent (RFC 3261, 25.1).
#include "telsx/telsx_warn_agent.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_host.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxWarnAgentOk( RT_STRING warnAgent )
{
    TELSX_ASSERT( warnAgent );
    return covers( telsx___SkipWarnAgent, warnAgent );
}

int64_t telsx___SkipPseudonym( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
