/* Session case: whether the served user is the caller or the called party.
 *
 *     sescase = "orig" / "term"
 *
 * (RFC 5502, sessioncase-param) */
#ifndef TELSX_TELSX_SESCASE_H
#define TELSX_TELSX_SESCASE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a session case; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxSescaseOk( RT_STRING sescase );

/* The session case in lower case, a new reference. Aborts unless telsxSescaseOk. */
RT_API RT_STRING telsxSescaseNormalize( RT_STRING sescase );

/* How many code points at the start of the text form a session case (see telsx_skip.h). */
RT_API int64_t telsx___SkipSescase( const RT_CHAR *chs, int64_t length );

RT_END

#endif
