/* Reason of a subscription state.
 *
 *     event-reason-value = "deactivated" / "probation" / "rejected" / "timeout" / "giveup" /
 *                          "noresource" / "invariant" / event-reason-extension
 *     event-reason-extension = token
 *
 * (RFC 6665, 8.4) */
#ifndef TELSX_TELSX_EVENT_REASON_VALUE_H
#define TELSX_TELSX_EVENT_REASON_VALUE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is an event reason value; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxEventReasonValueOk( RT_STRING eventReasonValue );

/* The event reason value in lower case, a new reference. Aborts unless telsxEventReasonValueOk. */
RT_API RT_STRING telsxEventReasonValueNormalize( RT_STRING eventReasonValue );

/* How many code points at the start of the text form an event reason value (see telsx_skip.h). */
RT_API int64_t telsx___SkipEventReasonValue( const RT_CHAR *chs, int64_t length );

RT_END

#endif
