/* Subject: what a call is about. Words with white space between them.
 *
 *     text = [ TEXT-UTF8-TRIM ]
 *     TEXT-UTF8-TRIM = 1*TEXT-UTF8char *( *LWS TEXT-UTF8char )
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_SUBJECT_H
#define TELSX_TELSX_SUBJECT_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is words, or none, with white space between and around them. Aborts for null. */
RT_API RT_BOOL telsxSubjectOk( RT_STRING subject );

/* The text without white space around it and with one blank between its words, a new reference. Aborts for null, and
 * unless telsxSubjectOk. */
RT_API RT_STRING telsxSubjectNormalize( RT_STRING subject );

/* How many code points at the start of the text are words; white space after the last word does not count (see
 * telsx_skip.h). */
RT_API int64_t telsx___SkipSubject( const RT_CHAR *chs, int64_t length );

RT_END

#endif
