// Disposition type (RFC 3261, 25.1).
#include "telsx/telsx_disposition_type.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxDispositionTypeOk( RT_STRING dispositionType )
{
    TELSX_ASSERT( dispositionType );
    return covers( telsx___SkipDispositionType, dispositionType );
}

RT_STRING telsxDispositionTypeNormalize( RT_STRING dispositionType )
{
    TELSX_ASSERT( telsxDispositionTypeOk( dispositionType ) );
    return lowerCase( dispositionType );
}

int64_t telsx___SkipDispositionType( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
