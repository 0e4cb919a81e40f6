// Proxy-Authenticate header (RFC 3261, 20.27).
#include "telsx/telsx_header_proxy_authenticate.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_PROXY_AUTHENTICATE_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderProxyAuthenticate, HEADER_PROXY_AUTHENTICATE, hdr, "Proxy-Authenticate" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderProxyAuthenticate, "Proxy-Authenticate", Challenge, Challenge )
