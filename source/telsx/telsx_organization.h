/* Organization: where a message comes from. Words with white space between them.
 *
 *     text = [ TEXT-UTF8-TRIM ]
 *     TEXT-UTF8-TRIM = 1*TEXT-UTF8char *( *LWS TEXT-UTF8char )
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_ORGANIZATION_H
#define TELSX_TELSX_ORGANIZATION_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is words, or none, with white space between and around them. Aborts for null. */
RT_API RT_BOOL telsxOrganizationOk( RT_STRING organization );

/* The text without white space around it and with one blank between its words, a new reference. Aborts for null, and
 * unless telsxOrganizationOk. */
RT_API RT_STRING telsxOrganizationNormalize( RT_STRING organization );

/* How many code points at the start of the text are words; white space after the last word does not count (see
 * telsx_skip.h). */
RT_API int64_t telsx___SkipOrganization( const RT_CHAR *chs, int64_t length );

RT_END

#endif
