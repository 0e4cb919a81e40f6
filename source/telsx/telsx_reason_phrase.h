/* Reason phrase of a response.
 *
 *     Reason-Phrase = *( reserved / unreserved / escaped / UTF8-NONASCII / UTF8-CONT / SP / HTAB )
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_REASON_PHRASE_H
#define TELSX_TELSX_REASON_PHRASE_H

#include "rt/rt.h"

RT_BEGIN

/* True: every text is a reason phrase, since whatever the grammar has no place for is escaped. Null aborts.
 */
RT_API RT_BOOL telsxReasonPhraseOk( RT_STRING reasonPhrase );

/* For the library's own units; new references. Encode writes what the grammar does not name as "%HH" and
 * aborts for null. Decode undoes escapes one by one, without taking them for UTF-8, and leaves a percent sign
 * alone that two hex digits do not follow; no text fails. */
RT_API RT_STRING telsx___ReasonPhraseEncode( RT_STRING s );
RT_API RT_STRING telsx___ReasonPhraseDecode( const RT_CHAR *chs, int64_t length );

RT_END

#endif
