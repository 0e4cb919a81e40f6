// Privacy value (RFC 3323, 4.2).
#include "telsx/telsx_priv_value.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxPrivValueOk( RT_STRING privValue )
{
    TELSX_ASSERT( privValue );
    return covers( telsx___SkipPrivValue, privValue );
}

RT_STRING telsxPrivValueNormalize( RT_STRING privValue )
{
    TELSX_ASSERT( telsxPrivValueOk( privValue ) );
    return lowerCase( privValue );
}

int64_t telsx___SkipPrivValue( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
