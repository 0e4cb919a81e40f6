/* Route header: the proxies that a request is to pass (RFC 3261, 20.34).
 *
 *     Route = "Route" HCOLON route-param *( COMMA route-param )
 *
 * A list of values of telsx_route.h. */
#ifndef TELSX_TELSX_HEADER_ROUTE_H
#define TELSX_TELSX_HEADER_ROUTE_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_route.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderRoute, HEADER_ROUTE, Route, ROUTE )

RT_END

#endif
