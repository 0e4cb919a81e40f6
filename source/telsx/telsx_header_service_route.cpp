// Service-Route header (RFC 3608, 5).
#include "telsx/telsx_header_service_route.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_SERVICE_ROUTE_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderServiceRoute, HEADER_SERVICE_ROUTE, hdr, "Service-Route" )
TELSX_DEFINE_VALUE_LIST( HeaderServiceRoute, Route, Route, telsx___RouteEncode, ClearRoutes )

TELSX_HEADER_SERVICE_ROUTE telsxHeaderServiceRouteCreate( void )
{
    return createList<TELSX_HEADER_SERVICE_ROUTE_>( telsxHeaderServiceRouteSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderServiceRouteEncode( TELSX_HEADER_SERVICE_ROUTE hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Service-Route">(), hdr->values );
}

static TELSX_HEADER_SERVICE_ROUTE decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_SERVICE_ROUTE> hdr = adopt( telsxHeaderServiceRouteCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipRoute, WithoutLines::isNull ) ? hdr.take() : nullptr;
}
