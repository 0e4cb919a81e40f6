/* P-Preferred-Identity header: who a party wants to be (RFC 3325, 9.2).
 *
 *     PPreferredID = "P-Preferred-Identity" HCOLON PPreferredID-value *( COMMA PPreferredID-value )
 *
 * A list of values of telsx_identity_value.h. */
#ifndef TELSX_TELSX_HEADER_P_PREFERRED_IDENTITY_H
#define TELSX_TELSX_HEADER_P_PREFERRED_IDENTITY_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_identity_value.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderPPreferredIdentity, HEADER_P_PREFERRED_IDENTITY, IdentityValue, IDENTITY_VALUE )

RT_END

#endif
