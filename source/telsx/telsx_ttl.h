/* Time to live of a multicast packet.
 *
 *     ttl = 1*3DIGIT
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_TTL_H
#define TELSX_TELSX_TTL_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the number is from 0 to 255. */
RT_API RT_BOOL telsxTtlOk( int64_t ttl );

/* For the library's own units. Encode returns the decimal digits, a new reference, and aborts unless telsxTtlOk.
 * TryDecode accepts only digits and returns their value, or -1 for bad text and for a number that is not Ok. */
RT_API RT_STRING telsx___TtlEncode( int64_t ttl );
RT_API int64_t telsx___TtlTryDecode( const RT_CHAR *chs, int64_t length );

/* How many code points at the start of the text are digits (see telsx_skip.h). */
RT_API int64_t telsx___SkipTtl( const RT_CHAR *chs, int64_t length );

RT_END

#endif
