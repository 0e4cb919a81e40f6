/* Warn agent: who added a Warning value.
 *
 *     warn-agent = hostport / pseudonym
 *     pseudonym = token
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_WARN_AGENT_H
#define TELSX_TELSX_WARN_AGENT_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a warn agent; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxWarnAgentOk( RT_STRING warnAgent );

/* How many code points at the start of the text form a pseudonym (see telsx_skip.h, where telsx___SkipWarnAgent is). */
RT_API int64_t telsx___SkipPseudonym( const RT_CHAR *chs, int64_t length );

RT_END

#endif
