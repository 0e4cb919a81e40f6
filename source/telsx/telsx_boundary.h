/* Boundary: what separates the parts of a body. Case-sensitive.
 *
 *     boundary = 0*69bchars bcharsnospace
 *     bchars = bcharsnospace / " "
 *     bcharsnospace = DIGIT / ALPHA / "'" / "(" / ")" / "+" / "_" / "," / "-" / "." / "/" / ":" / "=" / "?"
 *
 * (RFC 2046, 5.1.1) */
#ifndef TELSX_TELSX_BOUNDARY_H
#define TELSX_TELSX_BOUNDARY_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a boundary; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxBoundaryOk( RT_STRING boundary );

/* How many code points at the start of the text form a boundary (see telsx_skip.h). */
RT_API int64_t telsx___SkipBoundary( const RT_CHAR *chs, int64_t length );

RT_END

#endif
