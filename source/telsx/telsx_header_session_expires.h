/* Session-Expires header: how long a session lasts, and who refreshes it (RFC 4028, 4).
 *
 *     Session-Expires = ( "Session-Expires" / "x" ) HCOLON delta-seconds *( SEMI se-params )
 *     se-params = refresher-param / generic-param
 *     refresher-param = "refresher" EQUAL ( "uas" / "uac" )
 *
 * Text after the value and its parameters is ignored unless it begins with a semicolon. Headers sort by the fields in
 * the order below. */
#ifndef TELSX_TELSX_HEADER_SESSION_EXPIRES_H
#define TELSX_TELSX_HEADER_SESSION_EXPIRES_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderSessionExpires, HEADER_SESSION_EXPIRES )
TELSX_FREE_FUNC( HeaderSessionExpires )

/* A header with this interval and nothing else. Aborts unless telsxDeltaSecondsOk. */
RT_API TELSX_HEADER_SESSION_EXPIRES telsxHeaderSessionExpiresCreate( int64_t deltaSeconds );

/* The session interval, in seconds. Set aborts unless telsxDeltaSecondsOk. */
RT_API int64_t telsxHeaderSessionExpiresDeltaSeconds( TELSX_HEADER_SESSION_EXPIRES hdr );
RT_API void telsxHeaderSessionExpiresSetDeltaSeconds( TELSX_HEADER_SESSION_EXPIRES *hdr,
                                                      int64_t deltaSeconds );

/* Who refreshes the session, uac or uas, or null. Set aborts unless telsxRefresherOk. */
RT_API RT_STRING telsxHeaderSessionExpiresRefresher( TELSX_HEADER_SESSION_EXPIRES hdr );
RT_API RT_BOOL telsxHeaderSessionExpiresHasRefresher( TELSX_HEADER_SESSION_EXPIRES hdr );
RT_API void telsxHeaderSessionExpiresSetRefresher( TELSX_HEADER_SESSION_EXPIRES *hdr, RT_STRING refresher );
RT_API void telsxHeaderSessionExpiresDelRefresher( TELSX_HEADER_SESSION_EXPIRES *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderSessionExpiresGenericParams( TELSX_HEADER_SESSION_EXPIRES hdr );
RT_API void telsxHeaderSessionExpiresSetGenericParams( TELSX_HEADER_SESSION_EXPIRES *hdr,
                                                       TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
