/* Accept header: which bodies a party understands (RFC 3261, 20.1).
 *
 *     Accept = "Accept" HCOLON [ accept-range *( COMMA accept-range ) ]
 *
 * A list of values of telsx_accept.h. */
#ifndef TELSX_TELSX_HEADER_ACCEPT_H
#define TELSX_TELSX_HEADER_ACCEPT_H

#include "telsx/telsx_accept.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderAccept, HEADER_ACCEPT, Accept, ACCEPT )

RT_END

#endif
