// Token without dot (RFC 6665, 8.4).
#include "telsx/telsx_token_nodot.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxTokenNodotOk( RT_STRING tokenNodot )
{
    TELSX_ASSERT( tokenNodot );
    return covers( telsx___SkipTokenNodot, tokenNodot );
}

RT_STRING telsxTokenNodotNormalize( RT_STRING tokenNodot )
{
    TELSX_ASSERT( telsxTokenNodotOk( tokenNodot ) );
    return lowerCase( tokenNodot );
}
