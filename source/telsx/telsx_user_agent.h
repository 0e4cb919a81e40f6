/* User-Agent text: products, with an optional comment at the end.
 *
 *     text = server-val *( LWS server-val )
 *     server-val = product / comment
 *     product = token [ SLASH token ]
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_USER_AGENT_H
#define TELSX_TELSX_USER_AGENT_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is such a list. A comment includes the white space after it, so that it can only stand at the end;
 * white space at the end is refused. Aborts for null. */
RT_API RT_BOOL telsxUserAgentOk( RT_STRING userAgent );

RT_END

#endif
