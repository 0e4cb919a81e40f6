/* Route header: the proxies that a request is to pass (RFC 3261, 20.34).
 *
 *     Route = "Route" HCOLON route-param *( COMMA route-param )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_route.h); each is
 * written on a line of its own. Two headers compare by these texts. A raw header without lines is bad text;
 * one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_ROUTE_H
#define TELSX_TELSX_HEADER_ROUTE_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_route.h"

RT_BEGIN

TELSX_HEADER( HeaderRoute, HEADER_ROUTE )
TELSX_FREE_FUNC( HeaderRoute )

/* A header without values. */
RT_API TELSX_HEADER_ROUTE telsxHeaderRouteCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderRouteRoutesLength( TELSX_HEADER_ROUTE hdr );
RT_API TELSX_ROUTE telsxHeaderRouteTryDecodeRouteAt( TELSX_HEADER_ROUTE hdr, int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderRouteSetRouteAt( TELSX_HEADER_ROUTE *hdr, int64_t index, TELSX_ROUTE route );
RT_API void telsxHeaderRouteDelRouteAt( TELSX_HEADER_ROUTE *hdr, int64_t index );
RT_API void telsxHeaderRoutePrependRoute( TELSX_HEADER_ROUTE *hdr, TELSX_ROUTE route );
RT_API void telsxHeaderRouteAppendRoute( TELSX_HEADER_ROUTE *hdr, TELSX_ROUTE route );
RT_API void telsxHeaderRouteInsertRoute( TELSX_HEADER_ROUTE *hdr, int64_t index, TELSX_ROUTE route );
RT_API void telsxHeaderRouteClearRoutes( TELSX_HEADER_ROUTE *hdr );

RT_END

#endif
