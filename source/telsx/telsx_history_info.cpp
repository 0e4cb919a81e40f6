// History-Info value (RFC 7044).
#include "telsx/telsx_history_info.h"

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_history_info_index.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HISTORY_INFO_
{
    RT_OBJECT object;
    Ref<RT_STRING> iri; // never null
    Ref<RT_STRING> displayName;
    Ref<RT_STRING> index; // never null
    Ref<RT_STRING> rc;
    Ref<RT_STRING> mp;
    Ref<RT_STRING> np;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.iri, self.displayName, self.index, self.rc, self.mp, self.np,
                         self.genericParams );
    }
};

TELSX_DEFINE_OBJECT( HistoryInfo, HISTORY_INFO, telsx___HistoryInfoFreeFunc, telsx___HistoryInfoCompareFunc,
                     nullptr )
TELSX_DEFINE_FREE_FUNC( HistoryInfo, hi )
TELSX_DEFINE_COMPARE_FUNC( HistoryInfo, hi )
TELSX_DEFINE_FIELD( HistoryInfo, hi, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_OPTIONAL_FIELD( HistoryInfo, hi, DisplayName, displayName, telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_FIELD( HistoryInfo, hi, Index, index, telsxHistoryInfoIndexOk( index ) )
TELSX_DEFINE_OPTIONAL_FIELD( HistoryInfo, hi, Rc, rc, telsxHistoryInfoIndexOk( rc ) )
TELSX_DEFINE_OPTIONAL_FIELD( HistoryInfo, hi, Mp, mp, telsxHistoryInfoIndexOk( mp ) )
TELSX_DEFINE_OPTIONAL_FIELD( HistoryInfo, hi, Np, np, telsxHistoryInfoIndexOk( np ) )
TELSX_DEFINE_FIELD( HistoryInfo, hi, GenericParams, genericParams, genericParams )

static Ref<TELSX_HISTORY_INFO> create( Address address )
{
    auto hi = adopt( rt::create<TELSX_HISTORY_INFO_>( telsxHistoryInfoSort() ) );
    hi->iri = std::move( address.iri );
    hi->displayName = std::move( address.displayName );
    hi->genericParams = noGenericParams();
    return hi;
}

TELSX_HISTORY_INFO telsxHistoryInfoCreate( RT_STRING iri, RT_STRING index )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    TELSX_ASSERT_OK( telsxHistoryInfoIndexOk, index );
    Ref<TELSX_HISTORY_INFO> hi = create( { .iri = share( iri ) } );
    hi->index = share( index );
    return hi.take();
}

RT_STRING telsx___HistoryInfoEncode( TELSX_HISTORY_INFO hi )
{
    TELSX_ASSERT( hi );
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    appendAddress( text, hi->iri, hi->displayName );
    ParamWriter params( text );
    params.write<"index">( hi->index );
    params.write<"rc">( hi->rc );
    params.write<"mp">( hi->mp );
    params.write<"np">( hi->np );
    params.writeGeneric( hi->genericParams );
    return text.take();
}

TELSX_HISTORY_INFO telsx___HistoryInfoTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Address address;
    if ( !takeAddress( rest, address ) || !address.inBrackets )
        return nullptr;
    Ref<TELSX_HISTORY_INFO> hi = create( std::move( address ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.read<"index">( hi->index, telsx___SkipHistoryInfoIndex );
        param.read<"rc">( hi->rc, telsx___SkipHistoryInfoIndex );
        param.read<"mp">( hi->mp, telsx___SkipHistoryInfoIndex );
        param.read<"np">( hi->np, telsx___SkipHistoryInfoIndex );
        param.storeGeneric( hi->genericParams );
    }
    return param.failed() || !hi->index ? nullptr : hi.take();
}
