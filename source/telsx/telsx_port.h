/* Port.
 *
 *     port = 1*DIGIT
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_PORT_H
#define TELSX_TELSX_PORT_H

#include "rt/rt.h"

RT_BEGIN

/* How many code points at the start of the text are a port (see telsx_skip.h). */
RT_API int64_t telsx___SkipPort( const RT_CHAR *chs, int64_t length );

RT_END

#endif
