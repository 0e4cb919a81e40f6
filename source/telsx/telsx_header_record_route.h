/* Record-Route header: the proxies that want to stay in a dialog (RFC 3261, 20.30).
 *
 *     Record-Route = "Record-Route" HCOLON rec-route *( COMMA rec-route )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_route.h); each is
 * written on a line of its own. Two headers compare by these texts. A raw header without lines is bad text;
 * one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_RECORD_ROUTE_H
#define TELSX_TELSX_HEADER_RECORD_ROUTE_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_route.h"

RT_BEGIN

TELSX_HEADER( HeaderRecordRoute, HEADER_RECORD_ROUTE )
TELSX_FREE_FUNC( HeaderRecordRoute )

/* A header without values. */
RT_API TELSX_HEADER_RECORD_ROUTE telsxHeaderRecordRouteCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderRecordRouteRoutesLength( TELSX_HEADER_RECORD_ROUTE hdr );
RT_API TELSX_ROUTE telsxHeaderRecordRouteTryDecodeRouteAt( TELSX_HEADER_RECORD_ROUTE hdr, int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderRecordRouteSetRouteAt( TELSX_HEADER_RECORD_ROUTE *hdr, int64_t index,
                                              TELSX_ROUTE route );
RT_API void telsxHeaderRecordRouteDelRouteAt( TELSX_HEADER_RECORD_ROUTE *hdr, int64_t index );
RT_API void telsxHeaderRecordRoutePrependRoute( TELSX_HEADER_RECORD_ROUTE *hdr, TELSX_ROUTE route );
RT_API void telsxHeaderRecordRouteAppendRoute( TELSX_HEADER_RECORD_ROUTE *hdr, TELSX_ROUTE route );
RT_API void telsxHeaderRecordRouteInsertRoute( TELSX_HEADER_RECORD_ROUTE *hdr, int64_t index,
                                               TELSX_ROUTE route );
RT_API void telsxHeaderRecordRouteClearRoutes( TELSX_HEADER_RECORD_ROUTE *hdr );

RT_END

#endif
