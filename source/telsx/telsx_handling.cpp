// Handling (RFC 3261, 25.1).
#include "telsx/telsx_handling.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxHandlingOk( RT_STRING handling )
{
    TELSX_ASSERT( handling );
    return covers( telsx___SkipHandling, handling );
}

RT_STRING telsxHandlingNormalize( RT_STRING handling )
{
    TELSX_ASSERT( telsxHandlingOk( handling ) );
    return lowerCase( handling );
}

int64_t telsx___SkipHandling( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
