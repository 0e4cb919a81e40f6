/* Protocol name: the first part of a version.
 *
 *     protocol-name = "SIP" / token
 *
 * (RFC 3261, 25.1)
 *
 * The skipper, telsx___SkipProtocolName, is in telsx_skip.h. */
#ifndef TELSX_TELSX_PROTOCOL_NAME_H
#define TELSX_TELSX_PROTOCOL_NAME_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a protocol name; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxProtocolNameOk( RT_STRING protocolName );

/* The protocol name in upper case, a new reference. Aborts unless telsxProtocolNameOk. */
RT_API RT_STRING telsxProtocolNameNormalize( RT_STRING protocolName );

RT_END

#endif
