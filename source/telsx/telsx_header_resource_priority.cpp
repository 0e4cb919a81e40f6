// Resource-Priority header (RFC 4412, 3.1).
#include "telsx/telsx_header_resource_priority.h"

#include "telsx/telsx_resource_value.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_RESOURCE_PRIORITY_ : TokenSet
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderResourcePriority, HEADER_RESOURCE_PRIORITY, hdr, "Resource-Priority" )
TELSX_DEFINE_TOKEN_SET( HeaderResourcePriority, "Resource-Priority", ResourceValue,
                        telsxResourceValueNormalize, comma )
