// Error-Info header (RFC 3261, 20.18).
#include "telsx/telsx_header_error_info.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_ERROR_INFO_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderErrorInfo, HEADER_ERROR_INFO, hdr, "Error-Info" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderErrorInfo, "Error-Info", ErrorInfo, ErrorInfo )
