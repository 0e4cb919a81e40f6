// Reason header (RFC 3326, 2).
#include "telsx/telsx_header_reason.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_REASON_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderReason, HEADER_REASON, hdr, "Reason" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderReason, "Reason", Reason, Reason )
