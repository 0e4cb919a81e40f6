// Subscription-State header (RFC 6665, 8.2.3).
#include "telsx/telsx_header_subscription_state.h"

#include "telsx/telsx_delta_seconds.h"
#include "telsx/telsx_event_reason_value.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_substate_value.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_SUBSCRIPTION_STATE_
{
    RT_OBJECT object;
    Ref<RT_STRING> substateValue; // lower case, never null
    Ref<RT_STRING> reason;        // lower case
    int64_t expires;
    int64_t retryAfter;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.substateValue, self.reason, self.expires, self.retryAfter, self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderSubscriptionState, HEADER_SUBSCRIPTION_STATE, hdr, "Subscription-State" )
TELSX_DEFINE_NORMAL_FIELD( HeaderSubscriptionState, hdr, SubstateValue, substateValue,
                           telsxSubstateValueOk( substateValue ), telsxSubstateValueNormalize )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( HeaderSubscriptionState, hdr, Reason, reason,
                                    telsxEventReasonValueOk( reason ), telsxEventReasonValueNormalize )
TELSX_DEFINE_FIELD( HeaderSubscriptionState, hdr, GenericParams, genericParams, genericParams )

// The setters of the numbers name their argument by its meaning.

TELSX_DEFINE_GETTER( HeaderSubscriptionState, hdr, Expires, expires )
TELSX_DEFINE_OPTION( HeaderSubscriptionState, hdr, Expires, expires )
TELSX_DEFINE_GETTER( HeaderSubscriptionState, hdr, RetryAfter, retryAfter )
TELSX_DEFINE_OPTION( HeaderSubscriptionState, hdr, RetryAfter, retryAfter )

void telsxHeaderSubscriptionStateSetExpires( TELSX_HEADER_SUBSCRIPTION_STATE *hdr, int64_t deltaSeconds )
{
    TELSX_ASSERT_HANDLE( hdr );
    TELSX_ASSERT( telsxDeltaSecondsOk( deltaSeconds ) );
    TELSX_OWN( hdr )->expires = deltaSeconds;
}

void telsxHeaderSubscriptionStateSetRetryAfter( TELSX_HEADER_SUBSCRIPTION_STATE *hdr, int64_t deltaSeconds )
{
    TELSX_ASSERT_HANDLE( hdr );
    TELSX_ASSERT( telsxDeltaSecondsOk( deltaSeconds ) );
    TELSX_OWN( hdr )->retryAfter = deltaSeconds;
}

TELSX_HEADER_SUBSCRIPTION_STATE telsxHeaderSubscriptionStateCreate( RT_STRING substateValue )
{
    TELSX_ASSERT_OK( telsxSubstateValueOk, substateValue );
    TELSX_HEADER_SUBSCRIPTION_STATE hdr =
        rt::create<TELSX_HEADER_SUBSCRIPTION_STATE_>( telsxHeaderSubscriptionStateSort() );
    hdr->substateValue = adopt( telsxSubstateValueNormalize( substateValue ) );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderSubscriptionStateEncode( TELSX_HEADER_SUBSCRIPTION_STATE hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = hdr->substateValue;
    ParamWriter params( line );
    params.write<"reason">( hdr->reason );
    params.write<"expires">( hdr->expires );
    params.write<"retry-after">( hdr->retryAfter );
    params.writeGeneric( hdr->genericParams );
    return createHeader( literal<"Subscription-State">(), line );
}

static TELSX_HEADER_SUBSCRIPTION_STATE decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    Text substateValue = rest.take( telsx___SkipSubstateValue );
    if ( !substateValue )
        return nullptr;
    auto hdr = adopt( telsxHeaderSubscriptionStateCreate( substateValue.copy().get() ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.readNormal<"reason">( hdr->reason, telsx___SkipEventReasonValue,
                                    telsxEventReasonValueNormalize );
        param.read<"expires">( hdr->expires, telsx___SkipDeltaSeconds, telsx___DeltaSecondsTryDecode );
        param.read<"retry-after">( hdr->retryAfter, telsx___SkipDeltaSeconds, telsx___DeltaSecondsTryDecode );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}
