/* Session UUID: how one party names a session. Nil, which stands for an unknown one, is all zeros.
 *
 *     sess-uuid = 32( DIGIT / %x61-66 )  ; 0 to 9 and a to f
 *
 * (RFC 7989, 5) Capitals are not allowed. */
#ifndef TELSX_TELSX_SESS_UUID_H
#define TELSX_TELSX_SESS_UUID_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a session UUID; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxSessUuidOk( RT_STRING sessUuid );

/* How many code points at the start of the text form a session UUID (see telsx_skip.h). */
RT_API int64_t telsx___SkipSessUuid( const RT_CHAR *chs, int64_t length );

RT_END

#endif
