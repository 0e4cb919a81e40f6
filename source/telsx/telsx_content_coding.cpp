// Content coding (RFC 3261, 25.1).
#include "telsx/telsx_content_coding.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxContentCodingOk( RT_STRING contentCoding )
{
    TELSX_ASSERT( contentCoding );
    return covers( telsx___SkipContentCoding, contentCoding );
}

RT_STRING telsxContentCodingNormalize( RT_STRING contentCoding )
{
    TELSX_ASSERT( telsxContentCodingOk( contentCoding ) );
    return lowerCase( contentCoding );
}

int64_t telsx___SkipContentCoding( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
