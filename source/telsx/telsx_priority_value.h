/* Priority value.
 *
 *     priority-value = "emergency" / "urgent" / "normal" / "non-urgent" / other-priority
 *     other-priority = token
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_PRIORITY_VALUE_H
#define TELSX_TELSX_PRIORITY_VALUE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a priority value; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxPriorityValueOk( RT_STRING priority );

/* The priority value in lower case, a new reference. Aborts unless telsxPriorityValueOk. */
RT_API RT_STRING telsxPriorityValueNormalize( RT_STRING priority );

/* How many code points at the start of the text form a priority value (see telsx_skip.h). */
RT_API int64_t telsx___SkipPriorityValue( const RT_CHAR *chs, int64_t length );

RT_END

#endif
