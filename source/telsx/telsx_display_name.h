/* Display name: what is shown for an address.
 *
 *     display-name = *( token LWS ) / quoted-string
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_DISPLAY_NAME_H
#define TELSX_TELSX_DISPLAY_NAME_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text holds neither CR nor LF; the empty text is a display name. Aborts for null. */
RT_API RT_BOOL telsxDisplayNameOk( RT_STRING displayName );

/* For the library's own units. Encode always puts the name in quotes, returns a new reference, and aborts unless
 * telsxDisplayNameOk. TryDecode takes one whole quoted string, or tokens; white space between tokens becomes single
 * blanks. It returns the plain name, a new reference, or null for bad text. The skipper, telsx___SkipDisplayName, is in
 * telsx_skip.h. */
RT_API RT_STRING telsx___DisplayNameEncode( RT_STRING displayName );
RT_API RT_STRING telsx___DisplayNameTryDecode( const RT_CHAR *chs, int64_t length );

RT_END

#endif
