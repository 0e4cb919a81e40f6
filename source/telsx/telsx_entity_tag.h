/* Entity tag: which version of a published state a party means. Case-sensitive.
 *
 *     entity-tag = token
 *
 * (RFC 3903) */
#ifndef TELSX_TELSX_ENTITY_TAG_H
#define TELSX_TELSX_ENTITY_TAG_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is an entity tag; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxEntityTagOk( RT_STRING entityTag );

/* How many code points at the start of the text form an entity tag (see telsx_skip.h). */
RT_API int64_t telsx___SkipEntityTag( const RT_CHAR *chs, int64_t length );

RT_END

#endif
