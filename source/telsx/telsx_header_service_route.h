/* Service-Route header: the proxies that a registrar offers (RFC 3608, 5).
 *
 *     Service-Route = "Service-Route" HCOLON sr-value *( COMMA sr-value )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_route.h); each is
 * written on a line of its own. Two headers compare by these texts. A raw header without lines is bad text;
 * one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_SERVICE_ROUTE_H
#define TELSX_TELSX_HEADER_SERVICE_ROUTE_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_route.h"

RT_BEGIN

TELSX_HEADER( HeaderServiceRoute, HEADER_SERVICE_ROUTE )
TELSX_FREE_FUNC( HeaderServiceRoute )

/* A header without values. */
RT_API TELSX_HEADER_SERVICE_ROUTE telsxHeaderServiceRouteCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderServiceRouteRoutesLength( TELSX_HEADER_SERVICE_ROUTE hdr );
RT_API TELSX_ROUTE telsxHeaderServiceRouteTryDecodeRouteAt( TELSX_HEADER_SERVICE_ROUTE hdr, int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderServiceRouteSetRouteAt( TELSX_HEADER_SERVICE_ROUTE *hdr, int64_t index,
                                               TELSX_ROUTE route );
RT_API void telsxHeaderServiceRouteDelRouteAt( TELSX_HEADER_SERVICE_ROUTE *hdr, int64_t index );
RT_API void telsxHeaderServiceRoutePrependRoute( TELSX_HEADER_SERVICE_ROUTE *hdr, TELSX_ROUTE route );
RT_API void telsxHeaderServiceRouteAppendRoute( TELSX_HEADER_SERVICE_ROUTE *hdr, TELSX_ROUTE route );
RT_API void telsxHeaderServiceRouteInsertRoute( TELSX_HEADER_SERVICE_ROUTE *hdr, int64_t index,
                                                TELSX_ROUTE route );
RT_API void telsxHeaderServiceRouteClearRoutes( TELSX_HEADER_SERVICE_ROUTE *hdr );

RT_END

#endif
