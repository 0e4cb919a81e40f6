// Method (RFC 3261, 25.1).
#include "telsx/telsx_method.h"

#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxMethodOk( RT_STRING method )
{
    TELSX_ASSERT( method );
    return covers( telsx___SkipMethod, method );
}
