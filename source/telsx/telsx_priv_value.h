/* Privacy value.
 *
 *     priv-value = "header" / "session" / "user" / "none" / "critical" / token
 *
 * (RFC 3323, 4.2) */
#ifndef TELSX_TELSX_PRIV_VALUE_H
#define TELSX_TELSX_PRIV_VALUE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a priv value; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxPrivValueOk( RT_STRING privValue );

/* The priv value in lower case, a new reference. Aborts unless telsxPrivValueOk. */
RT_API RT_STRING telsxPrivValueNormalize( RT_STRING privValue );

/* How many code points at the start of the text form a priv value (see telsx_skip.h). */
RT_API int64_t telsx___SkipPrivValue( const RT_CHAR *chs, int64_t length );

RT_END

#endif
