/* Text of an address: what a user, a password or a parameter of an IRI says, with its escapes resolved.
 *
 *     escaped = "%" HEXDIG HEXDIG
 *
 * (RFC 3261, 19.1.2 and 25.1) Escapes say bytes. Those that are a character in UTF-8 become that character; any other
 * byte becomes a code point that no character has, the byte and U+DC00, from U+DC80 to U+DCFF, and is written as the
 * same escape again. */
#ifndef TELSX_TELSX_IRI_TEXT_H
#define TELSX_TELSX_IRI_TEXT_H

#include "rt/rt.h"

RT_BEGIN

/* Whether an address can hold the text: every code point is a character (U+0000 included) or stands for a byte as
 * above, and no such bytes in a row are a character in UTF-8. The empty text is one. Null aborts. */
RT_API RT_BOOL telsxIriTextOk( RT_STRING text );

/* The same for a user and for the names of parameters and headers, which are not empty. Null aborts. */
RT_API RT_BOOL telsxIriNameOk( RT_STRING name );

RT_END

#endif
