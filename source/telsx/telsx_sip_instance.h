/* SIP instance: the name of a device in a Contact value, without its quotes.
 *
 *     instance = "<" instance-val ">"
 *     instance-val = 1*uric
 *
 * (RFC 5626, 10) */
#ifndef TELSX_TELSX_SIP_INSTANCE_H
#define TELSX_TELSX_SIP_INSTANCE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is an instance; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxSipInstanceOk( RT_STRING sipInstance );

/* How many code points at the start of the text form the element (see telsx_skip.h). */
RT_API int64_t telsx___SkipSipInstance( const RT_CHAR *chs, int64_t length );

RT_END

#endif
