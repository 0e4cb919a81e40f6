/* Option tag: the name of a SIP extension.
 *
 *     option-tag = token
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_OPTION_TAG_H
#define TELSX_TELSX_OPTION_TAG_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is an option tag; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxOptionTagOk( RT_STRING optionTag );

/* The option tag in lower case, a new reference. Aborts unless telsxOptionTagOk. */
RT_API RT_STRING telsxOptionTagNormalize( RT_STRING optionTag );

/* How many code points at the start of the text form an option tag (see telsx_skip.h). */
RT_API int64_t telsx___SkipOptionTag( const RT_CHAR *chs, int64_t length );

RT_END

#endif
