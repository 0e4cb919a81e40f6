// Tag (RFC 3261, 25.1, tag-param).
#include "telsx/telsx_tag.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxTagOk( RT_STRING tag )
{
    TELSX_ASSERT( tag );
    return covers( telsx___SkipTag, tag );
}

int64_t telsx___SkipTag( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
