/* Max-Breadth header: how many parallel branches a request may still take (RFC 5393, 5.3.1).
 *
 *     Max-Breadth = "Max-Breadth" HCOLON 1*DIGIT */
#ifndef TELSX_TELSX_HEADER_MAX_BREADTH_H
#define TELSX_TELSX_HEADER_MAX_BREADTH_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderMaxBreadth, HEADER_MAX_BREADTH )

/* A header with this number of branches. Aborts unless telsxMaxBreadthOk. */
RT_API TELSX_HEADER_MAX_BREADTH telsxHeaderMaxBreadthCreate( int64_t maxBreadth );

/* The number of branches, 0 or more. Set aborts unless telsxMaxBreadthOk. */
RT_API int64_t telsxHeaderMaxBreadthMaxBreadth( TELSX_HEADER_MAX_BREADTH hdr );
RT_API void telsxHeaderMaxBreadthSetMaxBreadth( TELSX_HEADER_MAX_BREADTH *hdr, int64_t maxBreadth );

RT_END

#endif
