/* Tag: a party's half of a dialog's name. Case-sensitive.
 *
 *     tag = token
 *
 * (RFC 3261, 25.1, tag-param) */
#ifndef TELSX_TELSX_TAG_H
#define TELSX_TELSX_TAG_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a tag; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxTagOk( RT_STRING tag );

/* How many code points at the start of the text form a tag (see telsx_skip.h). */
RT_API int64_t telsx___SkipTag( const RT_CHAR *chs, int64_t length );

RT_END

#endif
