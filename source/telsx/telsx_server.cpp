// Server text (RFC 3261, 25.1).
#include "telsx/telsx_server.h"

#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxServerOk( RT_STRING server )
{
    TELSX_ASSERT( server );
    return covers( telsx___SkipServer, server );
}
