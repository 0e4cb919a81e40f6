// MIME version (RFC 3261, 25.1).
#include "telsx/telsx_mime_version.h"

#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxMimeVersionOk( RT_STRING mimeVersion )
{
    TELSX_ASSERT( mimeVersion );
    return covers( telsx___SkipMimeVersion, mimeVersion );
}

int64_t telsx___SkipMimeVersion( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    bool found = rest.take( telsx___SkipDigits )
                 && rest.take( telsx___SkipChar( rest.chs, rest.length, '.' ) )
                 && rest.take( telsx___SkipDigits );
    return found ? length - rest.length : 0;
}
