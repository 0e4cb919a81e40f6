// Alert-Info header (RFC 3261, 20.4).
#include "telsx/telsx_header_alert_info.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_ALERT_INFO_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAlertInfo, HEADER_ALERT_INFO, hdr, "Alert-Info" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderAlertInfo, "Alert-Info", AlertInfo, AlertInfo )
