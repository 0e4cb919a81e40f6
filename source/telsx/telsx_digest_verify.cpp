// Digest verify (RFC 3329, 2.2).
#include "telsx/telsx_digest_verify.h"

#include <algorithm>

#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxDigestVerifyOk( RT_STRING digestVerify )
{
    TELSX_ASSERT( digestVerify );
    return covers( telsx___SkipDigestVerify, digestVerify );
}

static bool isLhex( RT_CHAR ch ) { return ( ch >= '0' && ch <= '9' ) || ( ch >= 'a' && ch <= 'f' ); }

int64_t telsx___SkipDigestVerify( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t digits = std::find_if_not( chs, chs + length, isLhex ) - chs;
    return digits == 32 ? digits : 0;
}
