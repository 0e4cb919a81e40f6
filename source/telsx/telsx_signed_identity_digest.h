/* Signed identity digest: the PASSporT of an Identity header (RFC 8225), or in compact form its signature after two
 * dots.
 *
 *     signed-identity-digest = 1*( base64-char / "." )
 *     base64-char = ALPHA / DIGIT / "/" / "+"
 *
 * (RFC 8224, 4) The hyphen and the low line of base64url, in which PASSporTs are written (RFC 7515, 3), and the equal
 * sign at the end of padded base64 count as well. */
#ifndef TELSX_TELSX_SIGNED_IDENTITY_DIGEST_H
#define TELSX_TELSX_SIGNED_IDENTITY_DIGEST_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is such a digest; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxSignedIdentityDigestOk( RT_STRING signedIdentityDigest );

/* How many code points at the start of the text form such a digest (see telsx_skip.h). */
RT_API int64_t telsx___SkipSignedIdentityDigest( const RT_CHAR *chs, int64_t length );

RT_END

#endif
