// Allow-Events header (RFC 6665, 8.2.2).
#include "telsx/telsx_header_allow_events.h"

#include "telsx/telsx_event_type.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_ALLOW_EVENTS_ : TokenSet
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAllowEvents, HEADER_ALLOW_EVENTS, hdr, "Allow-Events" )
TELSX_DEFINE_TOKEN_SET( HeaderAllowEvents, "Allow-Events", EventType, asItIs, comma )
