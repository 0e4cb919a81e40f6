/* Protocol of a Reason value. Case-sensitive.
 *
 *     protocol = "SIP" / "Q.850" / token
 *
 * (RFC 3326, 2) */
#ifndef TELSX_TELSX_REASON_PROTOCOL_H
#define TELSX_TELSX_REASON_PROTOCOL_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a reason protocol; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxReasonProtocolOk( RT_STRING protocol );

/* How many code points at the start of the text form a reason protocol (see telsx_skip.h). */
RT_API int64_t telsx___SkipReasonProtocol( const RT_CHAR *chs, int64_t length );

RT_END

#endif
