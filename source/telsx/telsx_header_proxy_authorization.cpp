// Proxy-Authorization header (RFC 3261, 20.28).
#include "telsx/telsx_header_proxy_authorization.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_PROXY_AUTHORIZATION_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderProxyAuthorization, HEADER_PROXY_AUTHORIZATION, hdr, "Proxy-Authorization" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderProxyAuthorization, "Proxy-Authorization", Credential, Credentials )
