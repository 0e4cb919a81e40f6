// Subscription state (RFC 6665, 8.4).
#include "telsx/telsx_substate_value.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxSubstateValueOk( RT_STRING substateValue )
{
    TELSX_ASSERT( substateValue );
    return covers( telsx___SkipSubstateValue, substateValue );
}

RT_STRING telsxSubstateValueNormalize( RT_STRING substateValue )
{
    TELSX_ASSERT( substateValue );
    return telsxTokenNormalize( substateValue );
}

int64_t telsx___SkipSubstateValue( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
