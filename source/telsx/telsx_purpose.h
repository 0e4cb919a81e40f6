/* Purpose of a Call-Info value.
 *
 *     purpose = "icon" / "info" / "card" / token
 *
 * (RFC 3261, 25.1, info-param) */
#ifndef TELSX_TELSX_PURPOSE_H
#define TELSX_TELSX_PURPOSE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a purpose; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxPurposeOk( RT_STRING purpose );

/* The purpose in lower case, a new reference. Aborts unless telsxPurposeOk. */
RT_API RT_STRING telsxPurposeNormalize( RT_STRING purpose );

/* How many code points at the start of the text form a purpose (see telsx_skip.h). */
RT_API int64_t telsx___SkipPurpose( const RT_CHAR *chs, int64_t length );

RT_END

#endif
