/* Method: what a request asks for. Any token is a method, and methods are case-sensitive.
 *
 *     Method = INVITEm / ACKm / OPTIONSm / BYEm / CANCELm / REGISTERm / extension-method
 *     extension-method = token
 *
 * (RFC 3261, 25.1)
 *
 * The skipper, telsx___SkipMethod, is in telsx_skip.h. */
#ifndef TELSX_TELSX_METHOD_H
#define TELSX_TELSX_METHOD_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a method; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxMethodOk( RT_STRING method );

RT_END

#endif
