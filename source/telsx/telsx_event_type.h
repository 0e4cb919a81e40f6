/* Event type: an event package and its templates. Case-sensitive.
 *
 *     event-type = event-package *( "." event-template )
 *     event-package = token-nodot
 *     event-template = token-nodot
 *
 * (RFC 6665, 8.4) */
#ifndef TELSX_TELSX_EVENT_TYPE_H
#define TELSX_TELSX_EVENT_TYPE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is an event type; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxEventTypeOk( RT_STRING eventType );

/* How many code points at the start of the text form the element (see telsx_skip.h). */
RT_API int64_t telsx___SkipEventType( const RT_CHAR *chs, int64_t length );

RT_END

#endif
