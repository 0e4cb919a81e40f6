// Media subtype (RFC 3261, 25.1).
#include "telsx/telsx_media_subtype.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxMediaSubtypeOk( RT_STRING mediaSubtype )
{
    TELSX_ASSERT( mediaSubtype );
    return covers( telsx___SkipMediaSubtype, mediaSubtype );
}

RT_STRING telsxMediaSubtypeNormalize( RT_STRING mediaSubtype )
{
    TELSX_ASSERT( telsxMediaSubtypeOk( mediaSubtype ) );
    return lowerCase( mediaSubtype );
}

int64_t telsx___SkipMediaSubtype( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t token = runOf<classToken>( { chs, length } );
    return token == 1 && chs[0] == '*' ? 0 : token;
}
