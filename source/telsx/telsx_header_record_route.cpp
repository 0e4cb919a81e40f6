// Record-Route header (RFC 3261, 20.30).
#include "telsx/telsx_header_record_route.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_RECORD_ROUTE_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRecordRoute, HEADER_RECORD_ROUTE, hdr, "Record-Route" )
TELSX_DEFINE_VALUE_LIST( HeaderRecordRoute, Route, Route, telsx___RouteEncode, ClearRoutes )

TELSX_HEADER_RECORD_ROUTE telsxHeaderRecordRouteCreate( void )
{
    return createList<TELSX_HEADER_RECORD_ROUTE_>( telsxHeaderRecordRouteSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderRecordRouteEncode( TELSX_HEADER_RECORD_ROUTE hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Record-Route">(), hdr->values );
}

static TELSX_HEADER_RECORD_ROUTE decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_RECORD_ROUTE> hdr = adopt( telsxHeaderRecordRouteCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipRoute, WithoutLines::isNull ) ? hdr.take() : nullptr;
}
