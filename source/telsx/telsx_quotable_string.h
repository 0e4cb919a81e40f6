/* Quotable string: any text without line ends, which the wire carries in quotes.
 *
 *     quoted-string = SWS DQUOTE *( qdtext / quoted-pair ) DQUOTE
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_QUOTABLE_STRING_H
#define TELSX_TELSX_QUOTABLE_STRING_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text holds neither CR nor LF; the empty text is a quotable string. Aborts for null. */
RT_API RT_BOOL telsxQuotableStringOk( RT_STRING quotableString );

/* For the library's own units. Encode puts the text in quotes, with a backslash before quotes, backslashes, control
 * characters and the second of two spaces; it returns a new reference, and aborts for null and unless
 * telsxQuotableStringOk. TryDecode takes one whole quoted string, with optional white space before it, and returns its
 * plain text, a new reference, or null for bad text. The skipper is telsx___SkipQuotedString. */
RT_API RT_STRING telsx___QuotableStringEncode( RT_STRING quotableString );
RT_API RT_STRING telsx___QuotableStringTryDecode( const RT_CHAR *chs, int64_t length );

RT_END

#endif
