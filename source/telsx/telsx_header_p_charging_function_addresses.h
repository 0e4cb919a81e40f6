/* P-Charging-Function-Addresses header: where a session is charged (RFC 7315, 5.5).
 *
 *     P-Charging-Addr = "P-Charging-Function-Addresses" HCOLON charge-addr-params *( SEMI charge-addr-params )
 *     charge-addr-params = ccf / ecf / ccf-2 / ecf-2 / generic-param
 *     ccf = "ccf" EQUAL gen-value
 *     ecf = "ecf" EQUAL gen-value
 *     ccf-2 = "ccf-2" EQUAL gen-value
 *     ecf-2 = "ecf-2" EQUAL gen-value
 *
 * A second ccf or ecf is read as ccf-2 or ecf-2, since RFC 3455 had no other way to write it. Addresses are plain in
 * objects, and written in quotes unless they are a token or an IPv6 address in brackets. Headers sort by the fields in
 * the order below. */
#ifndef TELSX_TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES_H
#define TELSX_TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderPChargingFunctionAddresses, HEADER_P_CHARGING_FUNCTION_ADDRESSES )
TELSX_FREE_FUNC( HeaderPChargingFunctionAddresses )

/* A header without addresses, which is written without a line. */
RT_API TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES telsxHeaderPChargingFunctionAddressesCreate( void );

/* The charging collection function (ccf) and the event charging function (ecf), and for each another one that takes
 * its place if it fails (ccf-2, ecf-2), or null. Set aborts unless telsxQuotableStringOk. */
RT_API RT_STRING telsxHeaderPChargingFunctionAddressesCcf( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES hdr );
RT_API RT_BOOL telsxHeaderPChargingFunctionAddressesHasCcf( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES hdr );
RT_API void telsxHeaderPChargingFunctionAddressesSetCcf( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES *hdr,
                                                         RT_STRING ccf );
RT_API void telsxHeaderPChargingFunctionAddressesDelCcf( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES *hdr );
RT_API RT_STRING telsxHeaderPChargingFunctionAddressesEcf( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES hdr );
RT_API RT_BOOL telsxHeaderPChargingFunctionAddressesHasEcf( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES hdr );
RT_API void telsxHeaderPChargingFunctionAddressesSetEcf( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES *hdr,
                                                         RT_STRING ecf );
RT_API void telsxHeaderPChargingFunctionAddressesDelEcf( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES *hdr );
RT_API RT_STRING telsxHeaderPChargingFunctionAddressesCcf2( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES hdr );
RT_API RT_BOOL telsxHeaderPChargingFunctionAddressesHasCcf2( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES hdr );
RT_API void telsxHeaderPChargingFunctionAddressesSetCcf2( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES *hdr,
                                                          RT_STRING ccf2 );
RT_API void telsxHeaderPChargingFunctionAddressesDelCcf2( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES *hdr );
RT_API RT_STRING telsxHeaderPChargingFunctionAddressesEcf2( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES hdr );
RT_API RT_BOOL telsxHeaderPChargingFunctionAddressesHasEcf2( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES hdr );
RT_API void telsxHeaderPChargingFunctionAddressesSetEcf2( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES *hdr,
                                                          RT_STRING ecf2 );
RT_API void telsxHeaderPChargingFunctionAddressesDelEcf2( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS
telsxHeaderPChargingFunctionAddressesGenericParams( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES hdr );
RT_API void
telsxHeaderPChargingFunctionAddressesSetGenericParams( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES *hdr,
                                                       TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
