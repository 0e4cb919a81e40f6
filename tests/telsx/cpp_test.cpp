// The owning handle of telsx.hpp and its conversions; the leak check sees that every object is released.
#include "support/support.hpp"
#include "telsx/telsx.hpp"

namespace
{

using telsx::Owned;
using telsx::retained;
using telsx::toString;
using telsx::toUtf8;
using telsx::toView;

int64_t count( const Owned<TELSX_ROUTE> &route ) { return telsxRouteObj( route.get() )->count; }

TEST( Cpp, OwnedCountsReferences )
{
    Owned route( telsxRouteCreate( toString( "sip:a" ).get() ) );
    EXPECT_EQ( 1, count( route ) );
    Owned copy( route );
    Owned third( retained( telsxRouteFrom( telsxRouteObj( route.get() ) ) ) );
    EXPECT_EQ( 3, count( route ) );
    third = std::move( copy );
    EXPECT_FALSE( copy );
    EXPECT_EQ( 2, count( route ) );
    third = *&third;
    EXPECT_EQ( 2, count( route ) );

    // A setter leaves the other holder's object alone.
    telsxRouteSetIri( third.address(), toString( U"sip:b" ).get() );
    EXPECT_EQ( "sip:a", toUtf8( Owned( telsxRouteIri( route.get() ) ) ) );
    EXPECT_EQ( "sip:b", toUtf8( Owned( telsxRouteIri( third.get() ) ) ) );
    EXPECT_EQ( 1, count( route ) );

    third = {};
    EXPECT_FALSE( third || retained( third.get() ) || Owned( third ) );
}

TEST( Cpp, TextGoesThereAndBack )
{
    using namespace std::string_view_literals;
    for ( std::u32string_view text : { U""sv, U"mühle"sv, U"\U0001F4DE\0x"sv } )
    {
        Owned string = toString( text ), again = toString( toUtf8( string ) );
        EXPECT_EQ( text, toView( string ) );
        EXPECT_EQ( text, toView( again ) );
    }
    EXPECT_FALSE( toString( "\xc0\xaf" ) );
    EXPECT_EQ( "\xef\xbf\xbd", toUtf8( toString( std::u32string( 1, 0xD800 ) ) ) );
}

} // namespace
