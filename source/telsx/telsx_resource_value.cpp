// Resource value (RFC 4412, 3.1).
#include "telsx/telsx_resource_value.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxResourceValueOk( RT_STRING resourceValue )
{
    TELSX_ASSERT( resourceValue );
    return covers( telsx___SkipResourceValue, resourceValue );
}

RT_STRING telsxResourceValueNormalize( RT_STRING resourceValue )
{
    TELSX_ASSERT( telsxResourceValueOk( resourceValue ) );
    return lowerCase( resourceValue );
}

int64_t telsx___SkipResourceValue( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text text = { chs, length };
    int64_t dot = runOf<classTokenNodot>( text );
    if ( !dot || dot == length || chs[dot] != '.' )
        return 0;
    int64_t priority = runOf<classTokenNodot>( text.after( dot + 1 ) );
    return priority ? dot + 1 + priority : 0;
}
