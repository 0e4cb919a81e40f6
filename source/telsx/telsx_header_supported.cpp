// Supported header (RFC 3261, 20.37).
#include "telsx/telsx_header_supported.h"

#include "telsx/telsx_option_tag.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_SUPPORTED_ : TokenSet
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderSupported, HEADER_SUPPORTED, hdr, "Supported" )
TELSX_DEFINE_TOKEN_SET( HeaderSupported, "Supported", OptionTag, telsxOptionTagNormalize, comma )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderSupported, OptionTag, Cstr, char )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderSupported, OptionTag, Wcstr, wchar_t )
