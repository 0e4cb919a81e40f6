/* Accept-Contact header: which contacts a caller prefers (RFC 3841, 9.2 and 10).
 *
 *     Accept-Contact = ( "Accept-Contact" / "a" ) HCOLON ac-value *( COMMA ac-value )
 *
 * A list of values of telsx_accept_contact.h. */
#ifndef TELSX_TELSX_HEADER_ACCEPT_CONTACT_H
#define TELSX_TELSX_HEADER_ACCEPT_CONTACT_H

#include "telsx/telsx_accept_contact.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderAcceptContact, HEADER_ACCEPT_CONTACT, AcceptContact, ACCEPT_CONTACT )

RT_END

#endif
