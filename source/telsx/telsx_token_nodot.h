/* Token without dot: what event packages are named by.
 *
 *     token-nodot = 1*(alphanum / "-" / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~")
 *
 * (RFC 6665, 8.4) */
#ifndef TELSX_TELSX_TOKEN_NODOT_H
#define TELSX_TELSX_TOKEN_NODOT_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a token nodot; the empty text is none. Null aborts. */
RT_API RT_BOOL telsxTokenNodotOk( RT_STRING tokenNodot );

/* The token nodot in lower case, a new reference. Aborts unless telsxTokenNodotOk. */
RT_API RT_STRING telsxTokenNodotNormalize( RT_STRING tokenNodot );

/* How many code points at the start of the text are a token nodot (see telsx_skip.h). */
RT_API int64_t telsx___SkipTokenNodot( const RT_CHAR *chs, int64_t length );

RT_END

#endif
