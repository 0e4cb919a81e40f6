/* P-Visited-Network-Id header: the networks that a request passes on its way home (RFC 7315, 5.3).
 *
 *     P-Visited-Network-ID = "P-Visited-Network-ID" HCOLON vnetwork-spec *( COMMA vnetwork-spec )  ; RFC 7315
 *
 * A list of values of telsx_visited_network.h. */
#ifndef TELSX_TELSX_HEADER_P_VISITED_NETWORK_ID_H
#define TELSX_TELSX_HEADER_P_VISITED_NETWORK_ID_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_visited_network.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderPVisitedNetworkId, HEADER_P_VISITED_NETWORK_ID, VisitedNetwork,
                        VISITED_NETWORK )

RT_END

#endif
