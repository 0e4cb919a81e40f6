/* Language tag: a natural language, such as en or de-CH.
 *
 *     language-tag = primary-tag *( "-" subtag )
 *     primary-tag = 1*8ALPHA
 *     subtag = 1*8( ALPHA / DIGIT )
 *
 * (RFC 3261, 25.1; a subtag may have digits since RFC 3066, as in es-419) */
#ifndef TELSX_TELSX_LANGUAGE_TAG_H
#define TELSX_TELSX_LANGUAGE_TAG_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a language tag; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxLanguageTagOk( RT_STRING languageTag );

/* The language tag in lower case, a new reference. Aborts unless telsxLanguageTagOk. */
RT_API RT_STRING telsxLanguageTagNormalize( RT_STRING languageTag );

/* How many code points at the start of the text form a language tag (see telsx_skip.h). */
RT_API int64_t telsx___SkipLanguageTag( const RT_CHAR *chs, int64_t length );

RT_END

#endif
