// Privacy header (RFC 3323, 4.2).
#include "telsx/telsx_header_privacy.h"

#include "telsx/telsx_priv_value.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_PRIVACY_ : TokenSet
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPrivacy, HEADER_PRIVACY, hdr, "Privacy" )
TELSX_DEFINE_TOKEN_SET( HeaderPrivacy, "Privacy", PrivValue, telsxPrivValueNormalize, semicolon )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderPrivacy, PrivValue, Cstr, char )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderPrivacy, PrivValue, Wcstr, wchar_t )
