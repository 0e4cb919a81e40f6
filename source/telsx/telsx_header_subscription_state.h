/* Subscription-State header: the state of a subscription (RFC 6665, 8.2.3).
 *
 *     Subscription-State = "Subscription-State" HCOLON substate-value *( SEMI subexp-params )
 *     subexp-params = ( "reason" EQUAL event-reason-value ) / ( "expires" EQUAL delta-seconds ) /
 *                     ( "retry-after" EQUAL delta-seconds ) / generic-param
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_SUBSCRIPTION_STATE_H
#define TELSX_TELSX_HEADER_SUBSCRIPTION_STATE_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderSubscriptionState, HEADER_SUBSCRIPTION_STATE )
TELSX_FREE_FUNC( HeaderSubscriptionState )

/* A header with this state and nothing else. Aborts unless telsxSubstateValueOk. */
RT_API TELSX_HEADER_SUBSCRIPTION_STATE telsxHeaderSubscriptionStateCreate( RT_STRING substateValue );

/* The state, in lower case, never null. Set aborts unless telsxSubstateValueOk. */
RT_API RT_STRING telsxHeaderSubscriptionStateSubstateValue( TELSX_HEADER_SUBSCRIPTION_STATE hdr );
RT_API void telsxHeaderSubscriptionStateSetSubstateValue( TELSX_HEADER_SUBSCRIPTION_STATE *hdr,
                                                          RT_STRING substateValue );

/* The reason for the state, in lower case, or null. Set aborts unless telsxEventReasonValueOk. */
RT_API RT_STRING telsxHeaderSubscriptionStateReason( TELSX_HEADER_SUBSCRIPTION_STATE hdr );
RT_API RT_BOOL telsxHeaderSubscriptionStateHasReason( TELSX_HEADER_SUBSCRIPTION_STATE hdr );
RT_API void telsxHeaderSubscriptionStateSetReason( TELSX_HEADER_SUBSCRIPTION_STATE *hdr, RT_STRING reason );
RT_API void telsxHeaderSubscriptionStateDelReason( TELSX_HEADER_SUBSCRIPTION_STATE *hdr );

/* How long the subscription still lasts, and when to try again, in seconds, or -1 if absent. Set aborts unless
 * telsxDeltaSecondsOk. */
RT_API int64_t telsxHeaderSubscriptionStateExpires( TELSX_HEADER_SUBSCRIPTION_STATE hdr );
RT_API RT_BOOL telsxHeaderSubscriptionStateHasExpires( TELSX_HEADER_SUBSCRIPTION_STATE hdr );
RT_API void telsxHeaderSubscriptionStateSetExpires( TELSX_HEADER_SUBSCRIPTION_STATE *hdr,
                                                    int64_t deltaSeconds );
RT_API void telsxHeaderSubscriptionStateDelExpires( TELSX_HEADER_SUBSCRIPTION_STATE *hdr );
RT_API int64_t telsxHeaderSubscriptionStateRetryAfter( TELSX_HEADER_SUBSCRIPTION_STATE hdr );
RT_API RT_BOOL telsxHeaderSubscriptionStateHasRetryAfter( TELSX_HEADER_SUBSCRIPTION_STATE hdr );
RT_API void telsxHeaderSubscriptionStateSetRetryAfter( TELSX_HEADER_SUBSCRIPTION_STATE *hdr,
                                                       int64_t deltaSeconds );
RT_API void telsxHeaderSubscriptionStateDelRetryAfter( TELSX_HEADER_SUBSCRIPTION_STATE *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderSubscriptionStateGenericParams( TELSX_HEADER_SUBSCRIPTION_STATE hdr );
RT_API void telsxHeaderSubscriptionStateSetGenericParams( TELSX_HEADER_SUBSCRIPTION_STATE *hdr,
                                                          TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
