/* Token68: what some authentication schemes, such as Bearer, have in place of parameters.
 *
 *     token68 = 1*( ALPHA / DIGIT / "-" / "." / "_" / "~" / "+" / "/" ) *"="
 *
 * (RFC 7235, 2.1) */
#ifndef TELSX_TELSX_TOKEN68_H
#define TELSX_TELSX_TOKEN68_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a token68; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxToken68Ok( RT_STRING token68 );

/* How many code points at the start of the text form a token68 (see telsx_skip.h). */
RT_API int64_t telsx___SkipToken68( const RT_CHAR *chs, int64_t length );

RT_END

#endif
