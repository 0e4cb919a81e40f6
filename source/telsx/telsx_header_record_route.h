/* Record-Route header: the proxies that want to stay in a dialog (RFC 3261, 20.30).
 *
 *     Record-Route = "Record-Route" HCOLON rec-route *( COMMA rec-route )
 *
 * A list of values of telsx_route.h. */
#ifndef TELSX_TELSX_HEADER_RECORD_ROUTE_H
#define TELSX_TELSX_HEADER_RECORD_ROUTE_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_route.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderRecordRoute, HEADER_RECORD_ROUTE, Route, ROUTE )

RT_END

#endif
