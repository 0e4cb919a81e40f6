/* Media subtype: the second half of a kind of body. The wildcard "*" is not one.
 *
 *     m-subtype = token, but not "*"
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_MEDIA_SUBTYPE_H
#define TELSX_TELSX_MEDIA_SUBTYPE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a media subtype; the empty text and "*" are not. Aborts for null. */
RT_API RT_BOOL telsxMediaSubtypeOk( RT_STRING mediaSubtype );

/* The media subtype in lower case, a new reference. Aborts unless telsxMediaSubtypeOk. */
RT_API RT_STRING telsxMediaSubtypeNormalize( RT_STRING mediaSubtype );

/* How many code points at the start of the text form the element (see telsx_skip.h). */
RT_API int64_t telsx___SkipMediaSubtype( const RT_CHAR *chs, int64_t length );

RT_END

#endif
