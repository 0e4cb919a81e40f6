/* Server text: products, with an optional comment at the end.
 *
 *     text = server-val *( LWS server-val )
 *     server-val = product / comment
 *     product = token [ SLASH token ]
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_SERVER_H
#define TELSX_TELSX_SERVER_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is such a list. A comment includes the white space after it, so that it can only stand at the end;
 * white space at the end is refused. Aborts for null. */
RT_API RT_BOOL telsxServerOk( RT_STRING server );

RT_END

#endif
