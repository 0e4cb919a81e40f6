// P-Access-Network-Info header (RFC 7315, 5.4).
#include "telsx/telsx_header_p_access_network_info.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_P_ACCESS_NETWORK_INFO_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPAccessNetworkInfo, HEADER_P_ACCESS_NETWORK_INFO, hdr,
                            "P-Access-Network-Info" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderPAccessNetworkInfo, "P-Access-Network-Info", AccessNetSpec,
                               AccessNetSpec )
