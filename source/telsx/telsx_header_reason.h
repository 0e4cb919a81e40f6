/* Reason header: why a request was sent (RFC 3326, 2).
 *
 *     Reason = "Reason" HCOLON reason-value *( COMMA reason-value )
 *
 * A list of values of telsx_reason.h. */
#ifndef TELSX_TELSX_HEADER_REASON_H
#define TELSX_TELSX_HEADER_REASON_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_reason.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderReason, HEADER_REASON, Reason, REASON )

RT_END

#endif
