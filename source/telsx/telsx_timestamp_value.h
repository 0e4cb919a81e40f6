/* Timestamp value: when a request was sent, with the delay of its response, kept as text.
 *
 *     value = 1*DIGIT [ "." *DIGIT ] [ LWS delay ]
 *     delay = *DIGIT [ "." *DIGIT ]
 *
 * (RFC 3261, 25.1, Timestamp) */
#ifndef TELSX_TELSX_TIMESTAMP_VALUE_H
#define TELSX_TELSX_TIMESTAMP_VALUE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a timestamp value, which includes any white space at its end; the empty text is not one. Aborts
 * for null. */
RT_API RT_BOOL telsxTimestampValueOk( RT_STRING timestampValue );

/* How many code points at the start of the text form the element (see telsx_skip.h). */
RT_API int64_t telsx___SkipTimestampValue( const RT_CHAR *chs, int64_t length );

RT_END

#endif
