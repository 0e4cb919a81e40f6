/* Identity header: who vouches for the identity of a caller (RFC 8224, 4).
 *
 *     Identity = ( "Identity" / "y" ) HCOLON signed-identity-digest SEMI ident-info *( SEMI ident-info-params )
 *
 * A list of values of telsx_passport.h. */
#ifndef TELSX_TELSX_HEADER_IDENTITY_H
#define TELSX_TELSX_HEADER_IDENTITY_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_passport.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderIdentity, HEADER_IDENTITY, Passport, PASSPORT )

RT_END

#endif
