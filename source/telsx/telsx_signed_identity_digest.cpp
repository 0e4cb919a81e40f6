// Signed identity digest (RFC 8224, 4).
#include "telsx/telsx_signed_identity_digest.h"

#include <algorithm>

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxSignedIdentityDigestOk( RT_STRING signedIdentityDigest )
{
    TELSX_ASSERT( signedIdentityDigest );
    return covers( telsx___SkipSignedIdentityDigest, signedIdentityDigest );
}

static bool isOfDigest( RT_CHAR ch )
{
    return isIn( ch, classAlphanum ) || ch == '/' || ch == '+' || ch == '-' || ch == '_' || ch == '='
           || ch == '.';
}

int64_t telsx___SkipSignedIdentityDigest( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return std::find_if_not( chs, chs + length, isOfDigest ) - chs;
}
