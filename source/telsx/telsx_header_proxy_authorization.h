/* Proxy-Authorization header: how a client answers proxies (RFC 3261, 20.28).
 *
 *     Proxy-Authorization = "Proxy-Authorization" HCOLON credentials
 *
 * A list of values of telsx_credentials.h. RFC 3261, 7.3.1, wants a line for each; several on one line are read too, as in
 * HTTP (RFC 7235, 4). */
#ifndef TELSX_TELSX_HEADER_PROXY_AUTHORIZATION_H
#define TELSX_TELSX_HEADER_PROXY_AUTHORIZATION_H

#include "telsx/telsx_credentials.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderProxyAuthorization, HEADER_PROXY_AUTHORIZATION, Credential, CREDENTIALS )

RT_END

#endif
