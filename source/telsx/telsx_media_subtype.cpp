// Media subtype (RFC 3261, 25.1).
#include "telsx/telsx_media_subtype.h"

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxMediaSubtypeOk( RT_STRING mediaSubtype )
{
    return covers( telsx___SkipMediaSubtype, mediaSubtype );
}

RT_STRING telsxMediaSubtypeNormalize( RT_STRING mediaSubtype )
{
    TELSX_ASSERT( telsxMediaSubtypeOk( mediaSubtype ) );
    return lowerCase( mediaSubtype );
}

int64_t telsx___SkipMediaSubtype( const RT_CHAR *chs, int64_t length )
{
    int64_t token = telsx___SkipToken( chs, length );
    return token == 1 && chs[0] == '*' ? 0 : token;
}
