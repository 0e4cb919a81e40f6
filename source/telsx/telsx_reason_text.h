/* Text of a Reason value: plain in objects, in quotes on the wire.
 *
 *     reason-text = quoted-string
 *
 * (RFC 3326, 2) */
#ifndef TELSX_TELSX_REASON_TEXT_H
#define TELSX_TELSX_REASON_TEXT_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text holds neither CR nor LF; the empty text is a reason text. Aborts for null. */
RT_API RT_BOOL telsxReasonTextOk( RT_STRING text );

/* How many code points at the start of the text form the element (see telsx_skip.h). */
RT_API int64_t telsx___SkipReasonText( const RT_CHAR *chs, int64_t length );

RT_END

#endif
