/* Refresher: who refreshes a session.
 *
 *     refresher = "uac" / "uas"
 *
 * (RFC 4028, 4, refresher-param) */
#ifndef TELSX_TELSX_REFRESHER_H
#define TELSX_TELSX_REFRESHER_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is uac or uas, in any case. Aborts for null. */
RT_API RT_BOOL telsxRefresherOk( RT_STRING refresher );

/* The refresher in lower case, a new reference. Aborts unless telsxRefresherOk. */
RT_API RT_STRING telsxRefresherNormalize( RT_STRING refresher );

/* 3 if the text begins with one of the two, in any case, otherwise 0; what follows is not looked at (see
 * telsx_skip.h). */
RT_API int64_t telsx___SkipRefresher( const RT_CHAR *chs, int64_t length );

RT_END

#endif
