// Option tag (RFC 3261, 25.1).
#include "telsx/telsx_option_tag.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxOptionTagOk( RT_STRING optionTag )
{
    TELSX_ASSERT( optionTag );
    return covers( telsx___SkipOptionTag, optionTag );
}

RT_STRING telsxOptionTagNormalize( RT_STRING optionTag )
{
    TELSX_ASSERT( telsxOptionTagOk( optionTag ) );
    return lowerCase( optionTag );
}

int64_t telsx___SkipOptionTag( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
