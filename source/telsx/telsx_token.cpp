// Token (RFC 3261, 25.1).
#include "telsx/telsx_token.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxTokenOk( RT_STRING token )
{
    TELSX_ASSERT( token );
    return covers( telsx___SkipToken, token );
}

RT_STRING telsxTokenNormalize( RT_STRING token )
{
    TELSX_ASSERT( telsxTokenOk( token ) );
    return lowerCase( token );
}
