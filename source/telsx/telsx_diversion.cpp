// Diversion value (RFC 5806).
#include "telsx/telsx_diversion.h"

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_diversion_counter.h"
#include "telsx/telsx_diversion_limit.h"
#include "telsx/telsx_diversion_privacy.h"
#include "telsx/telsx_diversion_reason.h"
#include "telsx/telsx_diversion_screen.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_DIVERSION_
{
    RT_OBJECT object;
    Ref<RT_STRING> iri; // never null
    Ref<RT_STRING> displayName;
    Ref<RT_STRING> reason; // lower case
    int64_t counter;
    int64_t limit;
    Ref<RT_STRING> privacy;                  // lower case
    Ref<RT_STRING> screen;                   // lower case
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.iri, self.displayName, self.reason, self.counter, self.limit, self.privacy,
                         self.screen, self.genericParams );
    }
};

TELSX_DEFINE_OBJECT( Diversion, DIVERSION, telsx___DiversionFreeFunc, nullptr, nullptr )
TELSX_DEFINE_FREE_FUNC( Diversion, diversion )
TELSX_DEFINE_FIELD( Diversion, diversion, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_OPTIONAL_FIELD( Diversion, diversion, DisplayName, displayName,
                             telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( Diversion, diversion, Reason, reason, reason,
                                    telsxDiversionReasonNormalize )
TELSX_DEFINE_OPTIONAL_FIELD( Diversion, diversion, Counter, counter, telsxDiversionCounterOk( counter ) )
TELSX_DEFINE_OPTIONAL_FIELD( Diversion, diversion, Limit, limit, telsxDiversionLimitOk( limit ) )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( Diversion, diversion, Privacy, privacy, privacy,
                                    telsxDiversionPrivacyNormalize )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( Diversion, diversion, Screen, screen, screen,
                                    telsxDiversionScreenNormalize )
TELSX_DEFINE_FIELD( Diversion, diversion, GenericParams, genericParams, genericParams )

static Ref<TELSX_DIVERSION> create( Address address )
{
    auto diversion = adopt( rt::create<TELSX_DIVERSION_>( telsxDiversionSort() ) );
    diversion->iri = std::move( address.iri );
    diversion->displayName = std::move( address.displayName );
    diversion->genericParams = noGenericParams();
    return diversion;
}

TELSX_DIVERSION telsxDiversionCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    return create( { .iri = share( iri ) } ).take();
}

TELSX_DIVERSION telsxDiversionCreateWithDisplayName( RT_STRING iri, RT_STRING displayName )
{
    Ref<TELSX_DIVERSION> diversion = adopt( telsxDiversionCreate( iri ) );
    telsxDiversionSetDisplayName( diversion.address(), displayName );
    return diversion.take();
}

RT_STRING telsx___DiversionEncode( TELSX_DIVERSION diversion )
{
    TELSX_ASSERT( diversion );
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    appendAddress( text, diversion->iri, diversion->displayName );
    ParamWriter params( text );
    params.write<"reason">( diversion->reason, telsx___DiversionReasonEncode );
    params.write<"counter">( diversion->counter, telsx___DiversionCounterEncode );
    params.write<"limit">( diversion->limit, telsx___DiversionLimitEncode );
    params.write<"privacy">( diversion->privacy, telsx___DiversionPrivacyEncode );
    params.write<"screen">( diversion->screen, telsx___DiversionScreenEncode );
    params.writeGeneric( diversion->genericParams );
    return text.take();
}

TELSX_DIVERSION telsx___DiversionTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Address address;
    if ( !takeAddress( rest, address ) )
        return nullptr;
    Ref<TELSX_DIVERSION> diversion = create( std::move( address ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        if ( param.is<"reason">( telsx___SkipDiversionReason ) )
            param.storeNormal( diversion->reason, param.value.as( telsx___DiversionReasonTryDecode ),
                               telsxDiversionReasonNormalize );
        param.read<"counter">( diversion->counter, telsx___SkipDiversionCounter,
                               telsx___DiversionCounterTryDecode );
        param.read<"limit">( diversion->limit, telsx___SkipDiversionLimit, telsx___DiversionLimitTryDecode );
        if ( param.is<"privacy">( telsx___SkipDiversionPrivacy ) )
            param.storeNormal( diversion->privacy, param.value.as( telsx___DiversionPrivacyTryDecode ),
                               telsxDiversionPrivacyNormalize );
        if ( param.is<"screen">( telsx___SkipDiversionScreen ) )
            param.storeNormal( diversion->screen, param.value.as( telsx___DiversionScreenTryDecode ),
                               telsxDiversionScreenNormalize );
        param.storeGeneric( diversion->genericParams );
    }
    return param.failed() ? nullptr : diversion.take();
}
