/* Reject-Contact header: which contacts a caller does not want (RFC 3841, 9.2 and 10).
 *
 *     Reject-Contact = ( "Reject-Contact" / "j" ) HCOLON rc-value *( COMMA rc-value )
 *
 * A list of values of telsx_reject_contact.h. */
#ifndef TELSX_TELSX_HEADER_REJECT_CONTACT_H
#define TELSX_TELSX_HEADER_REJECT_CONTACT_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_reject_contact.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderRejectContact, HEADER_REJECT_CONTACT, RejectContact, REJECT_CONTACT )

RT_END

#endif
