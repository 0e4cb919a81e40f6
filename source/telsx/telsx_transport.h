/* Transport: the last part of the protocol in a Via value. New transports need no change here.
 *
 *     transport = "UDP" / "TCP" / "TLS" / "SCTP" / other-transport
 *     other-transport = token
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_TRANSPORT_H
#define TELSX_TELSX_TRANSPORT_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a transport; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxTransportOk( RT_STRING transport );

/* The transport in lower case, a new reference. Aborts unless telsxTransportOk. */
RT_API RT_STRING telsxTransportNormalize( RT_STRING transport );

/* How many code points at the start of the text form a transport (see telsx_skip.h). */
RT_API int64_t telsx___SkipTransport( const RT_CHAR *chs, int64_t length );

RT_END

#endif
