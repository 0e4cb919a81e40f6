// P-Visited-Network-Id header (RFC 7315, 5.3).
#include "telsx/telsx_header_p_visited_network_id.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_P_VISITED_NETWORK_ID_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPVisitedNetworkId, HEADER_P_VISITED_NETWORK_ID, hdr,
                            "P-Visited-Network-Id" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderPVisitedNetworkId, "P-Visited-Network-Id", VisitedNetwork,
                               VisitedNetwork )
