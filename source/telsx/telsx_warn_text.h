/* Text of a Warning value: plain in objects, in quotes on the wire.
 *
 *     warn-text = quoted-string
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_WARN_TEXT_H
#define TELSX_TELSX_WARN_TEXT_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text holds neither CR nor LF; the empty text is a warn text. Aborts for null. */
RT_API RT_BOOL telsxWarnTextOk( RT_STRING warnText );

/* How many code points at the start of the text form the element (see telsx_skip.h). */
RT_API int64_t telsx___SkipWarnText( const RT_CHAR *chs, int64_t length );

RT_END

#endif
