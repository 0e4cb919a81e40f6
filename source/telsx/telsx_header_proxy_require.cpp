// Proxy-Require header (RFC 3261, 20.29).
#include "telsx/telsx_header_proxy_require.h"

#include "telsx/telsx_option_tag.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_PROXY_REQUIRE_ : TokenSet
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderProxyRequire, HEADER_PROXY_REQUIRE, hdr, "Proxy-Require" )
TELSX_DEFINE_TOKEN_SET( HeaderProxyRequire, "Proxy-Require", OptionTag, telsxOptionTagNormalize, comma )
