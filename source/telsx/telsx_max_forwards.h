/* Max-Forwards: how many hops a request may still take.
 *
 *     Max-Forwards = 1*DIGIT
 *
 * (RFC 3261, 20.22 and 25.1) */
#ifndef TELSX_TELSX_MAX_FORWARDS_H
#define TELSX_TELSX_MAX_FORWARDS_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the number is from 0 to 255. */
RT_API RT_BOOL telsxMaxForwardsOk( int64_t maxForwards );

RT_END

#endif
