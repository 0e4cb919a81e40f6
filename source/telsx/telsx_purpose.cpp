// Purpose of a Call-Info value (RFC 3261, 25.1, info-param).
#include "telsx/telsx_purpose.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxPurposeOk( RT_STRING purpose )
{
    TELSX_ASSERT( purpose );
    return covers( telsx___SkipPurpose, purpose );
}

RT_STRING telsxPurposeNormalize( RT_STRING purpose )
{
    TELSX_ASSERT( telsxPurposeOk( purpose ) );
    return lowerCase( purpose );
}

int64_t telsx___SkipPurpose( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
