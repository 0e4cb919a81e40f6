// Media type (RFC 3261, 25.1).
#include "telsx/telsx_media_type.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxMediaTypeOk( RT_STRING mediaType )
{
    TELSX_ASSERT( mediaType );
    return covers( telsx___SkipMediaType, mediaType );
}

RT_STRING telsxMediaTypeNormalize( RT_STRING mediaType )
{
    TELSX_ASSERT( telsxMediaTypeOk( mediaType ) );
    return lowerCase( mediaType );
}

int64_t telsx___SkipMediaType( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t token = runOf<classToken>( { chs, length } );
    return token == 1 && chs[0] == '*' ? 0 : token;
}
