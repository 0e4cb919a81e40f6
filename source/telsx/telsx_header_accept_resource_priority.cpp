// Accept-Resource-Priority header (RFC 4412, 3.2).
#include "telsx/telsx_header_accept_resource_priority.h"

#include "telsx/telsx_resource_value.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_ACCEPT_RESOURCE_PRIORITY_ : TokenSet
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAcceptResourcePriority, HEADER_ACCEPT_RESOURCE_PRIORITY, hdr,
                            "Accept-Resource-Priority" )
TELSX_DEFINE_TOKEN_SET( HeaderAcceptResourcePriority, "Accept-Resource-Priority", ResourceValue,
                        telsxResourceValueNormalize, comma )
