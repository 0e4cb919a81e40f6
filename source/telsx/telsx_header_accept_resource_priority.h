/* Accept-Resource-Priority header: the priorities that a server processes (RFC 4412, 3.2).
 *
 *     Accept-Resource-Priority = "Accept-Resource-Priority" HCOLON [ r-value *( COMMA r-value ) ]
 *
 * A set of resource values in lower case, looked up in any case. */
#ifndef TELSX_TELSX_HEADER_ACCEPT_RESOURCE_PRIORITY_H
#define TELSX_TELSX_HEADER_ACCEPT_RESOURCE_PRIORITY_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_SET( HeaderAcceptResourcePriority, HEADER_ACCEPT_RESOURCE_PRIORITY, ResourceValue )

RT_END

#endif
