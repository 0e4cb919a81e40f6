/* Event header: which events a subscription is about (RFC 6665, 8.2.1).
 *
 *     Event = ( "Event" / "o" ) HCOLON event-type *( SEMI event-param )
 *     event-param = generic-param / ( "id" EQUAL token )
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_EVENT_H
#define TELSX_TELSX_HEADER_EVENT_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderEvent, HEADER_EVENT )
TELSX_FREE_FUNC( HeaderEvent )

/* A header with this event type and nothing else. Aborts unless telsxEventTypeOk. */
RT_API TELSX_HEADER_EVENT telsxHeaderEventCreate( RT_STRING eventType );
RT_API TELSX_HEADER_EVENT telsxHeaderEventCreateCstr( const char *chars, int64_t length );
RT_API TELSX_HEADER_EVENT telsxHeaderEventCreateWcstr( const wchar_t *chars, int64_t length );

/* The event type, in its original case, never null. Set aborts unless telsxEventTypeOk. */
RT_API RT_STRING telsxHeaderEventEventType( TELSX_HEADER_EVENT hdr );
RT_API void telsxHeaderEventSetEventType( TELSX_HEADER_EVENT *hdr, RT_STRING eventType );
RT_API void telsxHeaderEventSetEventTypeCstr( TELSX_HEADER_EVENT *hdr, const char *chars, int64_t length );
RT_API void telsxHeaderEventSetEventTypeWcstr( TELSX_HEADER_EVENT *hdr, const wchar_t *chars,
                                               int64_t length );

/* The id that tells several subscriptions of a dialog apart, in its original case, or null. Set aborts unless
 * telsxTokenOk. */
RT_API RT_STRING telsxHeaderEventId( TELSX_HEADER_EVENT hdr );
RT_API RT_BOOL telsxHeaderEventHasId( TELSX_HEADER_EVENT hdr );
RT_API void telsxHeaderEventSetId( TELSX_HEADER_EVENT *hdr, RT_STRING token );
RT_API void telsxHeaderEventDelId( TELSX_HEADER_EVENT *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderEventGenericParams( TELSX_HEADER_EVENT hdr );
RT_API void telsxHeaderEventSetGenericParams( TELSX_HEADER_EVENT *hdr, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
