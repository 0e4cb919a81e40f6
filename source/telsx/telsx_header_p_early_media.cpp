// P-Early-Media header (RFC 5009, 8).
#include "telsx/telsx_header_p_early_media.h"

#include "telsx/telsx_em_param.h"
#include "telsx/telsx_token_list.hpp"

using namespace telsx;

struct TELSX_HEADER_P_EARLY_MEDIA_ : TokenList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPEarlyMedia, HEADER_P_EARLY_MEDIA, hdr, "P-Early-Media" )
TELSX_DEFINE_TOKEN_LIST( HeaderPEarlyMedia, "P-Early-Media", EmParam, emParam )
