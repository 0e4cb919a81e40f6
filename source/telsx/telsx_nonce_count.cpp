// Nonce count (RFC 7616, 3.4).
#include "telsx/telsx_nonce_count.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxNonceCountOk( RT_STRING nonceCount )
{
    TELSX_ASSERT( nonceCount );
    return covers( telsx___SkipNonceCount, nonceCount );
}

int64_t telsx___SkipNonceCount( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t digits = runOf<classHexdig>( { chs, length } );
    return digits == 8 ? digits : 0;
}
