/* User-Agent header: the software that sent a request (RFC 3261, 20.41).
 *
 *     User-Agent = "User-Agent" HCOLON server-val *( LWS server-val )
 *
 * A comment can only stand at the end (see telsx_user_agent.h). */
#ifndef TELSX_TELSX_HEADER_USER_AGENT_H
#define TELSX_TELSX_HEADER_USER_AGENT_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderUserAgent, HEADER_USER_AGENT )
TELSX_FREE_FUNC( HeaderUserAgent )

/* A header with this text. Aborts unless telsxUserAgentOk. */
RT_API TELSX_HEADER_USER_AGENT telsxHeaderUserAgentCreate( RT_STRING userAgent );

/* The text, as it stands, never null. Set aborts unless telsxUserAgentOk. */
RT_API RT_STRING telsxHeaderUserAgentUserAgent( TELSX_HEADER_USER_AGENT hdr );
RT_API void telsxHeaderUserAgentSetUserAgent( TELSX_HEADER_USER_AGENT *hdr, RT_STRING userAgent );

RT_END

#endif
