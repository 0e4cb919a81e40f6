/* Unsupported header: the extensions that a party does not understand (RFC 3261, 20.40).
 *
 *     Unsupported = "Unsupported" HCOLON option-tag *( COMMA option-tag )
 *
 * A set of option tags in lower case, looked up in any case. */
#ifndef TELSX_TELSX_HEADER_UNSUPPORTED_H
#define TELSX_TELSX_HEADER_UNSUPPORTED_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_SET( HeaderUnsupported, HEADER_UNSUPPORTED, OptionTag )

RT_END

#endif
