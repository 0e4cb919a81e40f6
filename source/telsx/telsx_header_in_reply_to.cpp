// In-Reply-To header (RFC 3261, 20.21).
#include "telsx/telsx_header_in_reply_to.h"

#include "telsx/telsx_call_id.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_IN_REPLY_TO_ : TokenSet
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderInReplyTo, HEADER_IN_REPLY_TO, hdr, "In-Reply-To" )
TELSX_DEFINE_TOKEN_SET( HeaderInReplyTo, "In-Reply-To", CallId, asItIs, comma )
