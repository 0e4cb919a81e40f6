/* Allow-Events header: the event types that a party understands (RFC 6665, 8.2.2).
 *
 *     Allow-Events = ( "Allow-Events" / "u" ) HCOLON event-type *( COMMA event-type )
 *
 * A set of event types; their case counts. */
#ifndef TELSX_TELSX_HEADER_ALLOW_EVENTS_H
#define TELSX_TELSX_HEADER_ALLOW_EVENTS_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_SET( HeaderAllowEvents, HEADER_ALLOW_EVENTS, EventType )

RT_END

#endif
