/* Registration state: whether the served user is registered.
 *
 *     regstate = "unreg" / "reg"
 *
 * (RFC 5502, registration-state-param) */
#ifndef TELSX_TELSX_REGSTATE_H
#define TELSX_TELSX_REGSTATE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a registration state; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxRegstateOk( RT_STRING regstate );

/* The registration state in lower case, a new reference. Aborts unless telsxRegstateOk. */
RT_API RT_STRING telsxRegstateNormalize( RT_STRING regstate );

/* How many code points at the start of the text form a registration state (see telsx_skip.h). */
RT_API int64_t telsx___SkipRegstate( const RT_CHAR *chs, int64_t length );

RT_END

#endif
