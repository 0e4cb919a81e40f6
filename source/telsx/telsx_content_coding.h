/* Content coding: how a body is compressed.
 *
 *     content-coding = token
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_CONTENT_CODING_H
#define TELSX_TELSX_CONTENT_CODING_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a content coding; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxContentCodingOk( RT_STRING contentCoding );

/* The content coding in lower case, a new reference. Aborts unless telsxContentCodingOk. */
RT_API RT_STRING telsxContentCodingNormalize( RT_STRING contentCoding );

/* How many code points at the start of the text form a content coding (see telsx_skip.h). */
RT_API int64_t telsx___SkipContentCoding( const RT_CHAR *chs, int64_t length );

RT_END

#endif
