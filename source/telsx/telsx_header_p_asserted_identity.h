/* P-Asserted-Identity header: who a party is, as the network asserts it (RFC 3325, 9.1).
 *
 *     PAssertedID = "P-Asserted-Identity" HCOLON PAssertedID-value *( COMMA PAssertedID-value )
 *
 * A list of values of telsx_identity_value.h. */
#ifndef TELSX_TELSX_HEADER_P_ASSERTED_IDENTITY_H
#define TELSX_TELSX_HEADER_P_ASSERTED_IDENTITY_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_identity_value.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderPAssertedIdentity, HEADER_P_ASSERTED_IDENTITY, IdentityValue, IDENTITY_VALUE )

RT_END

#endif
