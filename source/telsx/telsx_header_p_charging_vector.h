/* P-Charging-Vector header: what the charges of a session are correlated by (RFC 7315, 5.6).
 *
 *     P-Charging-Vector = "P-Charging-Vector" HCOLON icid-value *( SEMI charge-params )
 *     charge-params = icid-gen-addr / orig-ioi / term-ioi / transit-ioi / related-icid / related-icid-gen-addr /
 *         generic-param
 *     icid-value = "icid-value" EQUAL gen-value
 *     icid-gen-addr = "icid-generated-at" EQUAL host
 *     orig-ioi = "orig-ioi" EQUAL gen-value
 *     term-ioi = "term-ioi" EQUAL gen-value
 *     transit-ioi = "transit-ioi" EQUAL transit-ioi-list
 *     related-icid = "related-icid" EQUAL gen-value
 *     related-icid-gen-addr = "related-icid-generated-at" EQUAL host
 *
 * Texts that are a token, a host or a quoted string on the wire (gen-value) are plain in objects, and written in quotes
 * unless they are a token or an IPv6 address in brackets. Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_P_CHARGING_VECTOR_H
#define TELSX_TELSX_HEADER_P_CHARGING_VECTOR_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderPChargingVector, HEADER_P_CHARGING_VECTOR )
TELSX_FREE_FUNC( HeaderPChargingVector )

/* A header with this value and nothing else. Aborts unless telsxQuotableStringOk. */
RT_API TELSX_HEADER_P_CHARGING_VECTOR telsxHeaderPChargingVectorCreate( RT_STRING icidValue );

/* The value that identifies the session, never null. Set aborts unless telsxQuotableStringOk. */
RT_API RT_STRING telsxHeaderPChargingVectorIcidValue( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API void telsxHeaderPChargingVectorSetIcidValue( TELSX_HEADER_P_CHARGING_VECTOR *hdr,
                                                    RT_STRING icidValue );

/* The host that made the value, or null. Set aborts unless telsxHostOk. */
RT_API RT_STRING telsxHeaderPChargingVectorIcidGeneratedAt( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API RT_BOOL telsxHeaderPChargingVectorHasIcidGeneratedAt( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API void telsxHeaderPChargingVectorSetIcidGeneratedAt( TELSX_HEADER_P_CHARGING_VECTOR *hdr,
                                                          RT_STRING icidGeneratedAt );
RT_API void telsxHeaderPChargingVectorDelIcidGeneratedAt( TELSX_HEADER_P_CHARGING_VECTOR *hdr );

/* The networks in which the call begins (orig-ioi) and ends (term-ioi), or null. Set aborts unless
 * telsxQuotableStringOk. */
RT_API RT_STRING telsxHeaderPChargingVectorOrigIoi( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API RT_BOOL telsxHeaderPChargingVectorHasOrigIoi( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API void telsxHeaderPChargingVectorSetOrigIoi( TELSX_HEADER_P_CHARGING_VECTOR *hdr, RT_STRING origIoi );
RT_API void telsxHeaderPChargingVectorDelOrigIoi( TELSX_HEADER_P_CHARGING_VECTOR *hdr );
RT_API RT_STRING telsxHeaderPChargingVectorTermIoi( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API RT_BOOL telsxHeaderPChargingVectorHasTermIoi( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API void telsxHeaderPChargingVectorSetTermIoi( TELSX_HEADER_P_CHARGING_VECTOR *hdr, RT_STRING termIoi );
RT_API void telsxHeaderPChargingVectorDelTermIoi( TELSX_HEADER_P_CHARGING_VECTOR *hdr );

/* The networks in between, as on the wire but without quotes, or null. Set aborts unless telsxTransitIoiOk. */
RT_API RT_STRING telsxHeaderPChargingVectorTransitIoi( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API RT_BOOL telsxHeaderPChargingVectorHasTransitIoi( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API void telsxHeaderPChargingVectorSetTransitIoi( TELSX_HEADER_P_CHARGING_VECTOR *hdr,
                                                     RT_STRING transitIoi );
RT_API void telsxHeaderPChargingVectorDelTransitIoi( TELSX_HEADER_P_CHARGING_VECTOR *hdr );

/* The value of a session that belongs to this one, or null. Set aborts unless telsxQuotableStringOk. */
RT_API RT_STRING telsxHeaderPChargingVectorRelatedIcid( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API RT_BOOL telsxHeaderPChargingVectorHasRelatedIcid( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API void telsxHeaderPChargingVectorSetRelatedIcid( TELSX_HEADER_P_CHARGING_VECTOR *hdr,
                                                      RT_STRING relatedIcid );
RT_API void telsxHeaderPChargingVectorDelRelatedIcid( TELSX_HEADER_P_CHARGING_VECTOR *hdr );

/* The host that made that value, or null. Set aborts unless telsxHostOk. */
RT_API RT_STRING telsxHeaderPChargingVectorRelatedIcidGeneratedAt( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API RT_BOOL telsxHeaderPChargingVectorHasRelatedIcidGeneratedAt( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API void telsxHeaderPChargingVectorSetRelatedIcidGeneratedAt( TELSX_HEADER_P_CHARGING_VECTOR *hdr,
                                                                 RT_STRING relatedIcidGeneratedAt );
RT_API void telsxHeaderPChargingVectorDelRelatedIcidGeneratedAt( TELSX_HEADER_P_CHARGING_VECTOR *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderPChargingVectorGenericParams( TELSX_HEADER_P_CHARGING_VECTOR hdr );
RT_API void telsxHeaderPChargingVectorSetGenericParams( TELSX_HEADER_P_CHARGING_VECTOR *hdr,
                                                        TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
