// Call-Info value (RFC 3261, 20.9).
#include "telsx/telsx_call_info.h"

#include "telsx/telsx_info.hpp"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_purpose.h"

using namespace telsx;

struct TELSX_CALL_INFO_
{
    RT_OBJECT object;
    Ref<RT_STRING> iri;                      // never null
    Ref<RT_STRING> purpose;                  // lower case
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.iri, self.purpose, self.genericParams );
    }
};

TELSX_DEFINE_VALUE_OBJECT( CallInfo, CALL_INFO, callInfo )
TELSX_DEFINE_FIELD( CallInfo, callInfo, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( CallInfo, callInfo, Purpose, purpose, telsxPurposeOk( purpose ),
                                    telsxPurposeNormalize )
TELSX_DEFINE_FIELD( CallInfo, callInfo, GenericParams, genericParams, genericParams )

static Ref<TELSX_CALL_INFO> create( Ref<RT_STRING> iri )
{
    auto callInfo = adopt( rt::create<TELSX_CALL_INFO_>( telsxCallInfoSort() ) );
    callInfo->iri = std::move( iri );
    callInfo->genericParams = noGenericParams();
    return callInfo;
}

TELSX_CALL_INFO telsxCallInfoCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    return create( share( iri ) ).take();
}

RT_STRING telsx___CallInfoEncode( TELSX_CALL_INFO callInfo )
{
    TELSX_ASSERT( callInfo );
    Ref<RT_STRING> text = adopt( encodeInfoAddress( callInfo->iri.get() ) );
    ParamWriter params( text );
    params.write<"purpose">( callInfo->purpose );
    params.writeGeneric( callInfo->genericParams );
    return text.take();
}

TELSX_CALL_INFO telsx___CallInfoTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Ref<RT_STRING> iri = takeInfoAddress( rest );
    if ( !iri )
        return nullptr;
    Ref<TELSX_CALL_INFO> callInfo = create( std::move( iri ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.readNormal<"purpose">( callInfo->purpose, telsx___SkipPurpose, telsxPurposeNormalize );
        param.storeGeneric( callInfo->genericParams );
    }
    return param.failed() ? nullptr : callInfo.take();
}
