// Call-Info header (RFC 3261, 20.9).
#include "telsx/telsx_header_call_info.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_CALL_INFO_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderCallInfo, HEADER_CALL_INFO, hdr, "Call-Info" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderCallInfo, "Call-Info", CallInfo, CallInfo )
