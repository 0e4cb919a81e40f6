/* Visited network: a network that a request passes on its way home. Element of P-Visited-Network-Id.
 *
 *     vnetwork-spec = ( token / quoted-string ) *( SEMI vnetwork-param )  ; RFC 7315
 *     vnetwork-param = generic-param
 *
 * (RFC 7315, 5.3) Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_VISITED_NETWORK_H
#define TELSX_TELSX_VISITED_NETWORK_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( VisitedNetwork, VISITED_NETWORK )
TELSX_COMPARE_FUNC( VisitedNetwork )
TELSX_TO_STRING_FUNC( VisitedNetwork )

/* A value with this name and nothing else. Aborts unless telsxQuotableStringOk. */
RT_API TELSX_VISITED_NETWORK telsxVisitedNetworkCreate( RT_STRING name );

/* The name of the network, plain, possibly empty, never null; written in quotes unless it is a token. Set aborts unless
 * telsxQuotableStringOk. */
RT_API RT_STRING telsxVisitedNetworkName( TELSX_VISITED_NETWORK visitedNetwork );
RT_API void telsxVisitedNetworkSetName( TELSX_VISITED_NETWORK *visitedNetwork, RT_STRING name );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxVisitedNetworkGenericParams( TELSX_VISITED_NETWORK visitedNetwork );
RT_API void telsxVisitedNetworkSetGenericParams( TELSX_VISITED_NETWORK *visitedNetwork,
                                                 TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form such a value (see telsx_skip.h). */
RT_API int64_t telsx___SkipVisitedNetwork( const RT_CHAR *chs, int64_t length );

RT_END

#endif
