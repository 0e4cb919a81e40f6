/* Endpoint identifier: 1 to 16 token characters that name a device.
 *
 *     epid = 1*16( token character )
 *
 * (MS-SIPREGE, 2.2.1; token as in RFC 3261, 25.1) */
#ifndef TELSX_TELSX_EPID_H
#define TELSX_TELSX_EPID_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is 1 to 16 token characters. Aborts for null. */
RT_API RT_BOOL telsxEpidOk( RT_STRING epid );

/* How many token characters the text begins with, at most 16 (see telsx_skip.h). */
RT_API int64_t telsx___SkipEpid( const RT_CHAR *chs, int64_t length );

RT_END

#endif
