/* Resource value: a priority in the terms of a namespace.
 *
 *     r-value = namespace "." r-priority
 *     namespace = token-nodot
 *     r-priority = token-nodot
 *
 * (RFC 4412, 3.1) */
#ifndef TELSX_TELSX_RESOURCE_VALUE_H
#define TELSX_TELSX_RESOURCE_VALUE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a resource value, such as dsn.flash. Aborts for null. */
RT_API RT_BOOL telsxResourceValueOk( RT_STRING resourceValue );

/* The resource value in lower case, a new reference. Aborts unless telsxResourceValueOk. */
RT_API RT_STRING telsxResourceValueNormalize( RT_STRING resourceValue );

/* How many code points at the start of the text form a resource value (see telsx_skip.h). */
RT_API int64_t telsx___SkipResourceValue( const RT_CHAR *chs, int64_t length );

RT_END

#endif
