/* Port. It has no upper limit, since the grammar has none.
 *
 *     port = 1*DIGIT
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_PORT_H
#define TELSX_TELSX_PORT_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the number is 0 or more. */
RT_API RT_BOOL telsxPortOk( int64_t port );

/* For the library's own units. Encode returns the decimal digits, a new reference, and aborts unless telsxPortOk.
 * TryDecode accepts only digits and returns their value, or -1 for bad text and for a number that is not Ok. */
RT_API RT_STRING telsx___PortEncode( int64_t port );
RT_API int64_t telsx___PortTryDecode( const RT_CHAR *chs, int64_t length );

/* How many code points at the start of the text are digits (see telsx_skip.h). */
RT_API int64_t telsx___SkipPort( const RT_CHAR *chs, int64_t length );

RT_END

#endif
