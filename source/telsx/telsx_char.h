/* Character classes of the SIP grammar (RFC 3261, 25.1; atom is that of RFC 3892). All members are below
 * U+0080. */
#ifndef TELSX_TELSX_CHAR_H
#define TELSX_TELSX_CHAR_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the code point is a member. Lws is space and tab; ParamChar includes the percent sign as a plain
 * character. */
RT_API RT_BOOL telsx___CharIsAlpha( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsDigit( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsAlphanum( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsLws( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsMark( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsUnreserved( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsReserved( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsHnvUnreserved( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsParamChar( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsSeparator( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsToken( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsTokenNodot( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsAtom( RT_CHAR ch );
RT_API RT_BOOL telsx___CharIsWord( RT_CHAR ch );

/* Whether the code point is a hex digit. The value becomes 0 to 15, or -1 for any other character; its address may be
 * null. */
RT_API RT_BOOL telsx___CharIsHexdig( RT_CHAR ch, int64_t *value );

RT_END

#endif
