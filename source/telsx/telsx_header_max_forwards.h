/* Max-Forwards header: how many hops a request may still take (RFC 3261, 20.22).
 *
 *     Max-Forwards = "Max-Forwards" HCOLON 1*DIGIT */
#ifndef TELSX_TELSX_HEADER_MAX_FORWARDS_H
#define TELSX_TELSX_HEADER_MAX_FORWARDS_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderMaxForwards, HEADER_MAX_FORWARDS )

/* A header with this number of hops. Aborts unless telsxMaxForwardsOk. */
RT_API TELSX_HEADER_MAX_FORWARDS telsxHeaderMaxForwardsCreate( int64_t maxForwards );

/* The number of hops, 0 to 255. Set aborts unless telsxMaxForwardsOk. */
RT_API int64_t telsxHeaderMaxForwardsMaxForwards( TELSX_HEADER_MAX_FORWARDS hdr );
RT_API void telsxHeaderMaxForwardsSetMaxForwards( TELSX_HEADER_MAX_FORWARDS *hdr, int64_t maxForwards );

RT_END

#endif
