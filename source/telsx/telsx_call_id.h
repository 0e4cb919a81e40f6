/* Call id: the name of a call. Case-sensitive.
 *
 *     callid = word [ "@" word ]
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_CALL_ID_H
#define TELSX_TELSX_CALL_ID_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a call id; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxCallIdOk( RT_STRING callId );

/* How many code points at the start of the text form a call id (see telsx_skip.h); 0 if an at sign after the first word
 * is not followed by a second word. */
RT_API int64_t telsx___SkipCallId( const RT_CHAR *chs, int64_t length );

RT_END

#endif
