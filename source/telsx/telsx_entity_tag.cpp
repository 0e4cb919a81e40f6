// Entity tag (RFC 3903).
#include "telsx/telsx_entity_tag.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxEntityTagOk( RT_STRING entityTag )
{
    TELSX_ASSERT( entityTag );
    return covers( telsx___SkipEntityTag, entityTag );
}

int64_t telsx___SkipEntityTag( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
