/* Security-Server header: the security mechanisms, what a server offers (RFC 3329, 2.2).
 *
 *     security-server = "Security-Server" HCOLON sec-mechanism *( COMMA sec-mechanism )
 *
 * A list of values of telsx_security_mechanism.h. */
#ifndef TELSX_TELSX_HEADER_SECURITY_SERVER_H
#define TELSX_TELSX_HEADER_SECURITY_SERVER_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_security_mechanism.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderSecurityServer, HEADER_SECURITY_SERVER, SecurityMechanism, SECURITY_MECHANISM )

RT_END

#endif
