/* Proxy-Require header: the extensions that proxies must understand (RFC 3261, 20.29).
 *
 *     Proxy-Require = "Proxy-Require" HCOLON option-tag *( COMMA option-tag )
 *
 * A set of option tags in lower case, looked up in any case. */
#ifndef TELSX_TELSX_HEADER_PROXY_REQUIRE_H
#define TELSX_TELSX_HEADER_PROXY_REQUIRE_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_SET( HeaderProxyRequire, HEADER_PROXY_REQUIRE, OptionTag )

RT_END

#endif
