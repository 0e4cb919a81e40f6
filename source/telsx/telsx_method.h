/* Method: what a request asks for. Any token is one, and its case counts.
 *
 *     Method = INVITEm / ACKm / OPTIONSm / BYEm / CANCELm / REGISTERm / extension-method
 *     extension-method = token
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_METHOD_H
#define TELSX_TELSX_METHOD_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a method; the empty text is none. Null aborts. */
RT_API RT_BOOL telsxMethodOk( RT_STRING method );

/* How many code points at the start of the text are a method (see telsx_skip.h). */
RT_API int64_t telsx___SkipMethod( const RT_CHAR *chs, int64_t length );

RT_END

#endif
