// Option tag (RFC 3261, 25.1).
#include "telsx/telsx_option_tag.h"

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxOptionTagOk( RT_STRING optionTag ) { return covers( telsx___SkipOptionTag, optionTag ); }

RT_STRING telsxOptionTagNormalize( RT_STRING optionTag )
{
    TELSX_ASSERT( telsxOptionTagOk( optionTag ) );
    return lowerCase( optionTag );
}

int64_t telsx___SkipOptionTag( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipToken( chs, length );
}
