/* Protocol version: the second part of a version.
 *
 *     protocol-version = token
 *
 * (RFC 3261, 25.1)
 *
 * The skipper, telsx___SkipProtocolVersion, is in telsx_skip.h. */
#ifndef TELSX_TELSX_PROTOCOL_VERSION_H
#define TELSX_TELSX_PROTOCOL_VERSION_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a protocol version; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxProtocolVersionOk( RT_STRING protocolVersion );

/* The protocol version in lower case, a new reference. Aborts unless telsxProtocolVersionOk. */
RT_API RT_STRING telsxProtocolVersionNormalize( RT_STRING protocolVersion );

RT_END

#endif
