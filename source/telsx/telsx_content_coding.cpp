// Content coding (RFC 3261, 25.1).
#include "telsx/telsx_content_coding.h"

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxContentCodingOk( RT_STRING contentCoding )
{
    return covers( telsx___SkipContentCoding, contentCoding );
}

RT_STRING telsxContentCodingNormalize( RT_STRING contentCoding )
{
    TELSX_ASSERT( telsxContentCodingOk( contentCoding ) );
    return lowerCase( contentCoding );
}

int64_t telsx___SkipContentCoding( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipToken( chs, length );
}
