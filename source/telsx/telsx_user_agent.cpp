// User-Agent text (RFC 3261, 25.1).
#include "telsx/telsx_user_agent.h"

#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxUserAgentOk( RT_STRING userAgent )
{
    TELSX_ASSERT( userAgent );
    return covers( telsx___SkipUserAgent, userAgent );
}
