/* Max-Breadth: how many parallel branches a request may still take.
 *
 *     Max-Breadth = 1*DIGIT
 *
 * (RFC 5393, 5.3.1) */
#ifndef TELSX_TELSX_MAX_BREADTH_H
#define TELSX_TELSX_MAX_BREADTH_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the number is 0 or more. */
RT_API RT_BOOL telsxMaxBreadthOk( int64_t maxBreadth );

RT_END

#endif
