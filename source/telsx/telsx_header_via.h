/* Via header: the hops that a message has taken (RFC 3261, 20.42).
 *
 *     Via = ( "Via" / "v" ) HCOLON via-parm *( COMMA via-parm )
 *
 * A list of values of telsx_via.h. A raw header without lines is an empty list. */
#ifndef TELSX_TELSX_HEADER_VIA_H
#define TELSX_TELSX_HEADER_VIA_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_via.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderVia, HEADER_VIA, Via, VIA )

RT_END

#endif
