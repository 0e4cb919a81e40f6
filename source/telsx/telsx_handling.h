/* Handling: what to do with a body that is not understood.
 *
 *     handling = "optional" / "required" / other-handling
 *     other-handling = token
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_HANDLING_H
#define TELSX_TELSX_HANDLING_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a handling; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxHandlingOk( RT_STRING handling );

/* The handling in lower case, a new reference. Aborts unless telsxHandlingOk. */
RT_API RT_STRING telsxHandlingNormalize( RT_STRING handling );

/* How many code points at the start of the text form a handling (see telsx_skip.h). */
RT_API int64_t telsx___SkipHandling( const RT_CHAR *chs, int64_t length );

RT_END

#endif
