/* Call-Info header: more about a party (RFC 3261, 20.9).
 *
 *     Call-Info = "Call-Info" HCOLON info *( COMMA info )
 *
 * A list of values of telsx_call_info.h. */
#ifndef TELSX_TELSX_HEADER_CALL_INFO_H
#define TELSX_TELSX_HEADER_CALL_INFO_H

#include "telsx/telsx_call_info.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderCallInfo, HEADER_CALL_INFO, CallInfo, CALL_INFO )

RT_END

#endif
