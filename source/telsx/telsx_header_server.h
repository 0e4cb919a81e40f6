/* Server header: the software that sent a response (RFC 3261, 20.35).
 *
 *     Server = "Server" HCOLON server-val *( LWS server-val )
 *
 * A comment can only stand at the end (see telsx_user_agent.h). */
#ifndef TELSX_TELSX_HEADER_SERVER_H
#define TELSX_TELSX_HEADER_SERVER_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderServer, HEADER_SERVER )
TELSX_FREE_FUNC( HeaderServer )

/* A header with this text. Aborts unless telsxServerOk. */
RT_API TELSX_HEADER_SERVER telsxHeaderServerCreate( RT_STRING server );

/* The text, as it stands, never null. Set aborts unless telsxServerOk. */
RT_API RT_STRING telsxHeaderServerServer( TELSX_HEADER_SERVER hdr );
RT_API void telsxHeaderServerSetServer( TELSX_HEADER_SERVER *hdr, RT_STRING server );

RT_END

#endif
