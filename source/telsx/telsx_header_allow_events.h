/* Allow-Events header: the event types that a party understands (RFC 6665, 8.2.2).
 *
 *     Allow-Events = ( "Allow-Events" / "u" ) HCOLON event-type *( COMMA event-type )
 *
 * A set of event types, in the order in which they came. Their case counts. All stand on one line when the
 * header is written; an empty set is written without a line. */
#ifndef TELSX_TELSX_HEADER_ALLOW_EVENTS_H
#define TELSX_TELSX_HEADER_ALLOW_EVENTS_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderAllowEvents, HEADER_ALLOW_EVENTS )
TELSX_FREE_FUNC( HeaderAllowEvents )

/* A header with an empty set. */
RT_API TELSX_HEADER_ALLOW_EVENTS telsxHeaderAllowEventsCreate( void );

/* The event types: their number, the one at the index, which must be valid, and a new vector of all. */
RT_API int64_t telsxHeaderAllowEventsEventTypesLength( TELSX_HEADER_ALLOW_EVENTS hdr );
RT_API RT_STRING telsxHeaderAllowEventsEventTypeAt( TELSX_HEADER_ALLOW_EVENTS hdr, int64_t index );
RT_API RT_VECTOR telsxHeaderAllowEventsEventTypesVector( TELSX_HEADER_ALLOW_EVENTS hdr );

/* Whether the element is there; adding it; taking it out, which changes nothing if it is absent. They
 * abort unless telsxEventTypeOk. */
RT_API RT_BOOL telsxHeaderAllowEventsHasEventType( TELSX_HEADER_ALLOW_EVENTS hdr, RT_STRING element );
RT_API void telsxHeaderAllowEventsSetEventType( TELSX_HEADER_ALLOW_EVENTS *hdr, RT_STRING element );
RT_API void telsxHeaderAllowEventsDelEventType( TELSX_HEADER_ALLOW_EVENTS *hdr, RT_STRING element );

/* The set emptied, and filled anew with the texts of a vector's elements: null aborts, and so does a text
 * that is not Ok. */
RT_API void telsxHeaderAllowEventsClearEventTypes( TELSX_HEADER_ALLOW_EVENTS *hdr );
RT_API void telsxHeaderAllowEventsSetEventTypesVector( TELSX_HEADER_ALLOW_EVENTS *hdr, RT_VECTOR vec );

RT_END

#endif
