/* Token without dot: the name of an event package.
 *
 *     token-nodot = 1*(alphanum / "-" / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~")
 *
 * (RFC 6665, 8.4)
 *
 * The skipper, telsx___SkipTokenNodot, is in telsx_skip.h. */
#ifndef TELSX_TELSX_TOKEN_NODOT_H
#define TELSX_TELSX_TOKEN_NODOT_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a token without dot; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxTokenNodotOk( RT_STRING tokenNodot );

/* The token in lower case, a new reference. Aborts unless telsxTokenNodotOk. */
RT_API RT_STRING telsxTokenNodotNormalize( RT_STRING tokenNodot );

RT_END

#endif
