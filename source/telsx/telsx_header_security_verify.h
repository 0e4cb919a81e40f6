/* Security-Verify header: the security mechanisms, what a server has offered, as the client repeats it (RFC 3329, 2.2).
 *
 *     security-verify = "Security-Verify" HCOLON sec-mechanism *( COMMA sec-mechanism )
 *
 * A list of values of telsx_security_mechanism.h. */
#ifndef TELSX_TELSX_HEADER_SECURITY_VERIFY_H
#define TELSX_TELSX_HEADER_SECURITY_VERIFY_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_security_mechanism.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderSecurityVerify, HEADER_SECURITY_VERIFY, SecurityMechanism, SECURITY_MECHANISM )

RT_END

#endif
