/* Text of an address: a user, a password, or a name or value of a parameter, with its escapes resolved.
 *
 *     escaped = "%" HEXDIG HEXDIG
 *
 * (RFC 3261, 19.1.2 and 25.1) Escapes stand for bytes. Those that form a character in UTF-8 become that character. Any
 * other byte from 80 to FF becomes U+DC00 plus the byte, a code point that no character has, and is written as the same
 * escape again. */
#ifndef TELSX_TELSX_IRI_TEXT_H
#define TELSX_TELSX_IRI_TEXT_H

#include "rt/rt.h"

RT_BEGIN

/* Whether an address can hold the text, which may be empty: every code point is a character, U+0000 included, or stands
 * for a byte as above, and no run of such bytes forms a character in UTF-8. Aborts for null. */
RT_API RT_BOOL telsxIriTextOk( RT_STRING text );

/* The same for users and for names of parameters and headers, which are not empty. Aborts for null. */
RT_API RT_BOOL telsxIriNameOk( RT_STRING name );

RT_END

#endif
