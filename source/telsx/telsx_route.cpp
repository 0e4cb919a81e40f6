// Route value (RFC 3261, 20.30 and 20.34; RFC 3608).
#include "telsx/telsx_route.h"

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_ROUTE_
{
    RT_OBJECT object;
    Ref<RT_STRING> iri; // never null
    Ref<RT_STRING> displayName;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.iri, self.displayName, self.genericParams );
    }
};

TELSX_DEFINE_OBJECT( Route, ROUTE, telsx___RouteFreeFunc, telsx___RouteCompareFunc, nullptr )
TELSX_DEFINE_FREE_FUNC( Route, route )
TELSX_DEFINE_COMPARE_FUNC( Route, route )
TELSX_DEFINE_FIELD( Route, route, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_OPTIONAL_FIELD( Route, route, DisplayName, displayName, telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_FIELD( Route, route, GenericParams, genericParams, genericParams )

static Ref<TELSX_ROUTE> create( Address address )
{
    auto route = adopt( rt::create<TELSX_ROUTE_>( telsxRouteSort() ) );
    route->iri = std::move( address.iri );
    route->displayName = std::move( address.displayName );
    route->genericParams = noGenericParams();
    return route;
}

TELSX_ROUTE telsxRouteCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    return create( { .iri = share( iri ) } ).take();
}

RT_STRING telsx___RouteEncode( TELSX_ROUTE route )
{
    TELSX_ASSERT( route );
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    appendAddress( text, route->iri, route->displayName );
    appendGenericParams( text, route->genericParams.get() );
    return text.take();
}

TELSX_ROUTE telsx___RouteTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Address address;
    if ( !takeAddress( rest, address ) )
        return nullptr;
    Ref<TELSX_ROUTE> route = create( std::move( address ) );
    return readGenericParams( rest, route->genericParams ) ? route.take() : nullptr;
}
