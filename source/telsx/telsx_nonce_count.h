/* Nonce count: how often a client has used a nonce. Kept as text, since the client has hashed it as it is.
 *
 *     nc-value = 8HEXDIG
 *
 * (RFC 7616, 3.4; RFC 3261, 25.1, which has lower case only) */
#ifndef TELSX_TELSX_NONCE_COUNT_H
#define TELSX_TELSX_NONCE_COUNT_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a nonce count. Aborts for null. */
RT_API RT_BOOL telsxNonceCountOk( RT_STRING nonceCount );

/* How many code points at the start of the text form a nonce count (see telsx_skip.h). More than eight digits are not
 * one. */
RT_API int64_t telsx___SkipNonceCount( const RT_CHAR *chs, int64_t length );

RT_END

#endif
