/* Diversion counter: how often a call was diverted.
 *
 *     diversion-counter = "counter" "=" 1*2DIGIT
 *
 * (RFC 5806, 4) */
#ifndef TELSX_TELSX_DIVERSION_COUNTER_H
#define TELSX_TELSX_DIVERSION_COUNTER_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the number is from 0 to 99. */
RT_API RT_BOOL telsxDiversionCounterOk( int64_t diversionCounter );

/* For the library's own units. Encode returns the decimal digits, a new reference, and aborts unless
 * telsxDiversionCounterOk. TryDecode accepts only digits and returns their value, or -1 for bad text and for a number
 * that is not Ok. */
RT_API RT_STRING telsx___DiversionCounterEncode( int64_t diversionCounter );
RT_API int64_t telsx___DiversionCounterTryDecode( const RT_CHAR *chs, int64_t length );

/* 1 or 2 if the text begins with exactly that many digits, otherwise 0 (see telsx_skip.h). */
RT_API int64_t telsx___SkipDiversionCounter( const RT_CHAR *chs, int64_t length );

RT_END

#endif
