/* Protocol version: the second part of a version.
 *
 *     protocol-version = token
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_PROTOCOL_VERSION_H
#define TELSX_TELSX_PROTOCOL_VERSION_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a protocol version; the empty text is none. Null aborts. */
RT_API RT_BOOL telsxProtocolVersionOk( RT_STRING protocolVersion );

/* The protocol version in lower case, a new reference. Aborts unless telsxProtocolVersionOk. */
RT_API RT_STRING telsxProtocolVersionNormalize( RT_STRING protocolVersion );

/* How many code points at the start of the text are a protocol version (see telsx_skip.h). */
RT_API int64_t telsx___SkipProtocolVersion( const RT_CHAR *chs, int64_t length );

RT_END

#endif
