/* Token: the word of the SIP grammar.
 *
 *     token = 1*(alphanum / "-" / "." / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~")
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_TOKEN_H
#define TELSX_TELSX_TOKEN_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a token; the empty text is none. Null aborts. */
RT_API RT_BOOL telsxTokenOk( RT_STRING token );

/* The token in lower case, a new reference. Aborts unless telsxTokenOk. */
RT_API RT_STRING telsxTokenNormalize( RT_STRING token );

/* How many code points at the start of the text are a token (see telsx_skip.h). */
RT_API int64_t telsx___SkipToken( const RT_CHAR *chs, int64_t length );

RT_END

#endif
