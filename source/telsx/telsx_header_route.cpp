// Route header (RFC 3261, 20.34).
#include "telsx/telsx_header_route.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_ROUTE_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRoute, HEADER_ROUTE, hdr, "Route" )
TELSX_DEFINE_VALUE_LIST( HeaderRoute, Route, Route, telsx___RouteEncode, ClearRoutes )

TELSX_HEADER_ROUTE telsxHeaderRouteCreate( void )
{
    return createList<TELSX_HEADER_ROUTE_>( telsxHeaderRouteSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderRouteEncode( TELSX_HEADER_ROUTE hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Route">(), hdr->values );
}

static TELSX_HEADER_ROUTE decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_ROUTE> hdr = adopt( telsxHeaderRouteCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipRoute, WithoutLines::isNull ) ? hdr.take() : nullptr;
}
