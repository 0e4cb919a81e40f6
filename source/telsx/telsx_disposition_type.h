/* Disposition type: how a body is to be handled.
 *
 *     disp-type = "render" / "session" / "icon" / "alert" / disp-extension-token
 *     disp-extension-token = token
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_DISPOSITION_TYPE_H
#define TELSX_TELSX_DISPOSITION_TYPE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a disposition type; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxDispositionTypeOk( RT_STRING dispositionType );

/* The disposition type in lower case, a new reference. Aborts unless telsxDispositionTypeOk. */
RT_API RT_STRING telsxDispositionTypeNormalize( RT_STRING dispositionType );

/* How many code points at the start of the text form a disposition type (see telsx_skip.h). */
RT_API int64_t telsx___SkipDispositionType( const RT_CHAR *chs, int64_t length );

RT_END

#endif
