// Allow header (RFC 3261, 20.5).
#include "telsx/telsx_header_allow.h"

#include "telsx/telsx_method.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_ALLOW_ : TokenSet
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAllow, HEADER_ALLOW, hdr, "Allow" )
TELSX_DEFINE_TOKEN_SET( HeaderAllow, "Allow", Method, asItIs, comma )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderAllow, Method, Cstr, char )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderAllow, Method, Wcstr, wchar_t )
