/* Authorization header: how a client answers user agents and registrars (RFC 3261, 20.7).
 *
 *     Authorization = "Authorization" HCOLON credentials
 *
 * A list of values of telsx_credentials.h. RFC 3261, 7.3.1, wants a line for each; several on one line are read too, as in
 * HTTP (RFC 7235, 4). */
#ifndef TELSX_TELSX_HEADER_AUTHORIZATION_H
#define TELSX_TELSX_HEADER_AUTHORIZATION_H

#include "telsx/telsx_credentials.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderAuthorization, HEADER_AUTHORIZATION, Credential, CREDENTIALS )

RT_END

#endif
