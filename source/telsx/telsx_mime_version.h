/* MIME version: which version of MIME a message uses.
 *
 *     mime-version = 1*DIGIT "." 1*DIGIT
 *
 * (RFC 3261, 25.1, MIME-Version) */
#ifndef TELSX_TELSX_MIME_VERSION_H
#define TELSX_TELSX_MIME_VERSION_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a MIME version; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxMimeVersionOk( RT_STRING mimeVersion );

/* How many code points at the start of the text form a MIME version (see telsx_skip.h). */
RT_API int64_t telsx___SkipMimeVersion( const RT_CHAR *chs, int64_t length );

RT_END

#endif
