/* Diversion reason: why a call was diverted. A token or a quoted string on the wire, plain text in objects.
 *
 *     diversion-reason = "reason" "=" ( "unknown" / "user-busy" / "no-answer" / "unavailable" /
 *         "unconditional" / "time-of-day" / "do-not-disturb" / "deflection" / "follow-me" /
 *         "out-of-service" / "away" / token / quoted-string )
 *
 * (RFC 5806, 4) */
#ifndef TELSX_TELSX_DIVERSION_REASON_H
#define TELSX_TELSX_DIVERSION_REASON_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text, as it stands on the wire, is one token or one quoted string. Aborts for null. */
RT_API RT_BOOL telsxDiversionReasonOk( RT_STRING diversionReason );

/* The text in lower case, a new reference. Any text has such a form; null aborts. */
RT_API RT_STRING telsxDiversionReasonNormalize( RT_STRING diversionReason );

/* For the library's own units; new references. Encode takes plain text, writes it in quotes unless it is a token, and
 * aborts for null. TryDecode takes one whole element and returns its plain text, or null for bad text. */
RT_API RT_STRING telsx___DiversionReasonEncode( RT_STRING diversionReason );
RT_API RT_STRING telsx___DiversionReasonTryDecode( const RT_CHAR *chs, int64_t length );

/* How many code points at the start of the text form the element (see telsx_skip.h). */
RT_API int64_t telsx___SkipDiversionReason( const RT_CHAR *chs, int64_t length );

RT_END

#endif
