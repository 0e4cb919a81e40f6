/* Diversion privacy: how a diverting party wants to be shown. A token or a quoted string on the wire, plain
 * text in objects.
 *
 *     diversion-privacy = "privacy" "=" ( "full" / "name" / "uri" / "off" / token / quoted-string )
 *
 * (RFC 5806, 4) */
#ifndef TELSX_TELSX_DIVERSION_PRIVACY_H
#define TELSX_TELSX_DIVERSION_PRIVACY_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text, as it stands on the wire, is one token or one quoted string. Aborts for null. */
RT_API RT_BOOL telsxDiversionPrivacyOk( RT_STRING diversionPrivacy );

/* The text in lower case, a new reference. Any text has such a form; null aborts. */
RT_API RT_STRING telsxDiversionPrivacyNormalize( RT_STRING diversionPrivacy );

/* For the library's own units; new references. Encode takes plain text, writes it in quotes unless it is a token, and
 * aborts for null. TryDecode takes one whole element and returns its plain text, or null for bad text. */
RT_API RT_STRING telsx___DiversionPrivacyEncode( RT_STRING diversionPrivacy );
RT_API RT_STRING telsx___DiversionPrivacyTryDecode( const RT_CHAR *chs, int64_t length );

/* How many code points at the start of the text form the element (see telsx_skip.h). */
RT_API int64_t telsx___SkipDiversionPrivacy( const RT_CHAR *chs, int64_t length );

RT_END

#endif
