/* Transit IOI: the networks that a request has crossed between those of the caller and the callee.
 *
 *     transit-ioi-list = DQUOTE transit-ioi-param *( COMMA transit-ioi-param ) DQUOTE
 *     transit-ioi-param = transit-ioi-indexed-value / transit-ioi-void-value
 *     transit-ioi-indexed-value = transit-ioi-name "." transit-ioi-index
 *     transit-ioi-name = ALPHA *( ALPHA / DIGIT )
 *     transit-ioi-index = 1*DIGIT
 *     transit-ioi-void-value = "void"
 *
 * (RFC 7315, 5.6) */
#ifndef TELSX_TELSX_TRANSIT_IOI_H
#define TELSX_TELSX_TRANSIT_IOI_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is such a list, without its quotes. Aborts for null. */
RT_API RT_BOOL telsxTransitIoiOk( RT_STRING transitIoi );

/* How many code points at the start of the text form such a list, without its quotes (see telsx_skip.h). */
RT_API int64_t telsx___SkipTransitIoi( const RT_CHAR *chs, int64_t length );

RT_END

#endif
