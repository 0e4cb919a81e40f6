/* P-Access-Network-Info header: how a party is attached to the network (RFC 7315, 5.4).
 *
 *     P-Access-Network-Info = "P-Access-Network-Info" HCOLON access-net-spec *( COMMA access-net-spec )  ; RFC 7315
 *
 * A list of values of telsx_access_net_spec.h. */
#ifndef TELSX_TELSX_HEADER_P_ACCESS_NETWORK_INFO_H
#define TELSX_TELSX_HEADER_P_ACCESS_NETWORK_INFO_H

#include "telsx/telsx_access_net_spec.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderPAccessNetworkInfo, HEADER_P_ACCESS_NETWORK_INFO, AccessNetSpec,
                        ACCESS_NET_SPEC )

RT_END

#endif
