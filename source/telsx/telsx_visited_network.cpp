// Visited network (RFC 7315, 5.3).
#include "telsx/telsx_visited_network.h"

#include "telsx/telsx_quoted.hpp"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_VISITED_NETWORK_
{
    RT_OBJECT object;
    Ref<RT_STRING> name;                     // plain, never null
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.name, self.genericParams ); }
};

TELSX_DEFINE_OBJECT( VisitedNetwork, VISITED_NETWORK, telsx___VisitedNetworkFreeFunc,
                     telsx___VisitedNetworkCompareFunc, telsx___VisitedNetworkToStringFunc )
TELSX_DEFINE_FREE_FUNC( VisitedNetwork, visitedNetwork )
TELSX_DEFINE_COMPARE_FUNC( VisitedNetwork, visitedNetwork )
TELSX_DEFINE_TO_STRING_FUNC( VisitedNetwork, visitedNetwork )
TELSX_DEFINE_FIELD( VisitedNetwork, visitedNetwork, Name, name, telsxQuotableStringOk( name ) )
TELSX_DEFINE_FIELD( VisitedNetwork, visitedNetwork, GenericParams, genericParams, genericParams )

TELSX_VISITED_NETWORK telsxVisitedNetworkCreate( RT_STRING name )
{
    TELSX_ASSERT_OK( telsxQuotableStringOk, name );
    TELSX_VISITED_NETWORK visitedNetwork = rt::create<TELSX_VISITED_NETWORK_>( telsxVisitedNetworkSort() );
    visitedNetwork->name = share( name );
    visitedNetwork->genericParams = noGenericParams();
    return visitedNetwork;
}

RT_STRING telsx___VisitedNetworkEncode( TELSX_VISITED_NETWORK visitedNetwork )
{
    TELSX_ASSERT( visitedNetwork );
    Ref<RT_STRING> text = adopt( encodeTokenOrQuoted( visitedNetwork->name.get() ) );
    appendGenericParams( text, visitedNetwork->genericParams.get() );
    return text.take();
}

TELSX_VISITED_NETWORK telsx___VisitedNetworkTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Ref<RT_STRING> name = adopt( tryDecodeTokenOrQuoted( rest.take( skipTokenOrQuoted( rest ) ) ) );
    if ( !name )
        return nullptr;
    auto visitedNetwork = adopt( telsxVisitedNetworkCreate( name.get() ) );

    ParamReader param( rest );
    while ( param.next() )
        param.storeGeneric( visitedNetwork->genericParams );
    return param.failed() ? nullptr : visitedNetwork.take();
}

int64_t telsx___SkipVisitedNetwork( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWithParams( { chs, length }, skipTokenOrQuoted( { chs, length } ) );
}
