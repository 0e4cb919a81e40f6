/* Reason phrase of a response.
 *
 *     Reason-Phrase = *( reserved / unreserved / escaped / UTF8-NONASCII / UTF8-CONT / SP / HTAB )
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_REASON_PHRASE_H
#define TELSX_TELSX_REASON_PHRASE_H

#include "rt/rt.h"

RT_BEGIN

/* Always true: every text is a reason phrase, since whatever the grammar does not allow is escaped. Aborts for null. */
RT_API RT_BOOL telsxReasonPhraseOk( RT_STRING reasonPhrase );

/* For the library's own units; new references. Encode writes what the grammar does not allow as "%HH" and aborts for
 * null. Decode decodes each escape to one character, not as UTF-8, and leaves a percent sign alone unless two hex
 * digits follow it; it never fails. */
RT_API RT_STRING telsx___ReasonPhraseEncode( RT_STRING s );
RT_API RT_STRING telsx___ReasonPhraseDecode( const RT_CHAR *chs, int64_t length );

RT_END

#endif
