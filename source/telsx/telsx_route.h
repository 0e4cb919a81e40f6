/* Route value: a proxy that a request is to pass or has passed (Route, Record-Route, Service-Route).
 *
 *     route-param = name-addr *( SEMI rr-param )
 *     rr-param = generic-param
 *
 * (RFC 3261, 25.1; RFC 3608, 5) Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_ROUTE_H
#define TELSX_TELSX_ROUTE_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( Route, ROUTE )
TELSX_COMPARE_FUNC( Route )

/* A route with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_ROUTE telsxRouteCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxRouteIri( TELSX_ROUTE route );
RT_API void telsxRouteSetIri( TELSX_ROUTE *route, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxRouteDisplayName( TELSX_ROUTE route );
RT_API RT_BOOL telsxRouteHasDisplayName( TELSX_ROUTE route );
RT_API void telsxRouteSetDisplayName( TELSX_ROUTE *route, RT_STRING displayName );
RT_API void telsxRouteDelDisplayName( TELSX_ROUTE *route );

/* The parameters, never null. Those of the address, such as lr, are part of the IRI. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxRouteGenericParams( TELSX_ROUTE route );
RT_API void telsxRouteSetGenericParams( TELSX_ROUTE *route, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
