// Require header (RFC 3261, 20.32).
#include "telsx/telsx_header_require.h"

#include "telsx/telsx_option_tag.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_REQUIRE_ : TokenSet
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRequire, HEADER_REQUIRE, hdr, "Require" )
TELSX_DEFINE_TOKEN_SET( HeaderRequire, "Require", OptionTag, telsxOptionTagNormalize, comma )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderRequire, OptionTag, Cstr, char )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderRequire, OptionTag, Wcstr, wchar_t )
