// Unsupported header (RFC 3261, 20.40).
#include "telsx/telsx_header_unsupported.h"

#include "telsx/telsx_option_tag.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_UNSUPPORTED_ : TokenSet
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderUnsupported, HEADER_UNSUPPORTED, hdr, "Unsupported" )
TELSX_DEFINE_TOKEN_SET( HeaderUnsupported, "Unsupported", OptionTag, telsxOptionTagNormalize, comma )
