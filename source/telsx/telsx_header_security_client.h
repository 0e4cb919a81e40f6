/* Security-Client header: the security mechanisms, what a client offers (RFC 3329, 2.2).
 *
 *     security-client = "Security-Client" HCOLON sec-mechanism *( COMMA sec-mechanism )
 *
 * A list of values of telsx_security_mechanism.h. */
#ifndef TELSX_TELSX_HEADER_SECURITY_CLIENT_H
#define TELSX_TELSX_HEADER_SECURITY_CLIENT_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_security_mechanism.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderSecurityClient, HEADER_SECURITY_CLIENT, SecurityMechanism, SECURITY_MECHANISM )

RT_END

#endif
