/* Response number: the sequence number of a reliable provisional response.
 *
 *     response-num = 1*DIGIT
 *
 * (RFC 3262, 7.1) */
#ifndef TELSX_TELSX_RESPONSE_NUM_H
#define TELSX_TELSX_RESPONSE_NUM_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the number is from 1 to 4294967295. */
RT_API RT_BOOL telsxResponseNumOk( int64_t responseNum );

/* Whether the next number is valid too. Aborts unless telsxResponseNumOk. */
RT_API RT_BOOL telsxResponseNumIncrementOk( int64_t responseNum );

RT_END

#endif
