/* Proxy-Authenticate header: what a proxy wants proved (RFC 3261, 20.27).
 *
 *     Proxy-Authenticate = "Proxy-Authenticate" HCOLON challenge
 *
 * A list of values of telsx_challenge.h. RFC 3261, 7.3.1, wants a line for each; several on one line are read too, as in
 * HTTP (RFC 7235, 4). */
#ifndef TELSX_TELSX_HEADER_PROXY_AUTHENTICATE_H
#define TELSX_TELSX_HEADER_PROXY_AUTHENTICATE_H

#include "telsx/telsx_challenge.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderProxyAuthenticate, HEADER_PROXY_AUTHENTICATE, Challenge, CHALLENGE )

RT_END

#endif
