/* Alert-Info header: how to ring (RFC 3261, 20.4).
 *
 *     Alert-Info = "Alert-Info" HCOLON alert-param *( COMMA alert-param )
 *
 * A list of values of telsx_alert_info.h. */
#ifndef TELSX_TELSX_HEADER_ALERT_INFO_H
#define TELSX_TELSX_HEADER_ALERT_INFO_H

#include "telsx/telsx_alert_info.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderAlertInfo, HEADER_ALERT_INFO, AlertInfo, ALERT_INFO )

RT_END

#endif
