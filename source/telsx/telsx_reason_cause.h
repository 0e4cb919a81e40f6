/* Cause of a Reason value: digits, kept as text.
 *
 *     cause = 1*DIGIT
 *
 * (RFC 3326, 2, reason-params) */
#ifndef TELSX_TELSX_REASON_CAUSE_H
#define TELSX_TELSX_REASON_CAUSE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is one or more digits. Aborts for null. */
RT_API RT_BOOL telsxReasonCauseOk( RT_STRING cause );

/* How many code points at the start of the text form the element (see telsx_skip.h). */
RT_API int64_t telsx___SkipReasonCause( const RT_CHAR *chs, int64_t length );

RT_END

#endif
