/* Media type: the first half of a kind of body. The wildcard "*" is not one.
 *
 *     m-type = token, but not "*"
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_MEDIA_TYPE_H
#define TELSX_TELSX_MEDIA_TYPE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a media type; the empty text and "*" are not. Aborts for null. */
RT_API RT_BOOL telsxMediaTypeOk( RT_STRING mediaType );

/* The media type in lower case, a new reference. Aborts unless telsxMediaTypeOk. */
RT_API RT_STRING telsxMediaTypeNormalize( RT_STRING mediaType );

/* How many code points at the start of the text form the element (see telsx_skip.h). */
RT_API int64_t telsx___SkipMediaType( const RT_CHAR *chs, int64_t length );

RT_END

#endif
