/* Token: the word of the SIP grammar.
 *
 *     token = 1*(alphanum / "-" / "." / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~")
 *
 * (RFC 3261, 25.1)
 *
 * The skipper, telsx___SkipToken, is in telsx_skip.h. */
#ifndef TELSX_TELSX_TOKEN_H
#define TELSX_TELSX_TOKEN_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a token; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxTokenOk( RT_STRING token );

/* The token in lower case, a new reference. Aborts unless telsxTokenOk. */
RT_API RT_STRING telsxTokenNormalize( RT_STRING token );

RT_END

#endif
