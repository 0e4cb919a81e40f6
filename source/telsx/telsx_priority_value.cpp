// Priority value (RFC 3261, 25.1).
#include "telsx/telsx_priority_value.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxPriorityValueOk( RT_STRING priority )
{
    TELSX_ASSERT( priority );
    return covers( telsx___SkipPriorityValue, priority );
}

RT_STRING telsxPriorityValueNormalize( RT_STRING priority )
{
    TELSX_ASSERT( telsxPriorityValueOk( priority ) );
    return telsxTokenNormalize( priority );
}

int64_t telsx___SkipPriorityValue( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
