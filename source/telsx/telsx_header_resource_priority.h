/* Resource-Priority header: the priority that a request claims (RFC 4412, 3.1).
 *
 *     Resource-Priority = "Resource-Priority" HCOLON r-value *( COMMA r-value )
 *
 * A set of resource values in lower case, looked up in any case. */
#ifndef TELSX_TELSX_HEADER_RESOURCE_PRIORITY_H
#define TELSX_TELSX_HEADER_RESOURCE_PRIORITY_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_SET( HeaderResourcePriority, HEADER_RESOURCE_PRIORITY, ResourceValue )

RT_END

#endif
