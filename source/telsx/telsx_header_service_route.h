/* Service-Route header: the proxies that a registrar offers (RFC 3608, 5).
 *
 *     Service-Route = "Service-Route" HCOLON sr-value *( COMMA sr-value )
 *
 * A list of values of telsx_route.h. */
#ifndef TELSX_TELSX_HEADER_SERVICE_ROUTE_H
#define TELSX_TELSX_HEADER_SERVICE_ROUTE_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_route.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderServiceRoute, HEADER_SERVICE_ROUTE, Route, ROUTE )

RT_END

#endif
