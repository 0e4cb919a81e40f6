/* Expires header: how long something is valid (RFC 3261, 20.19).
 *
 *     Expires = "Expires" HCOLON delta-seconds */
#ifndef TELSX_TELSX_HEADER_EXPIRES_H
#define TELSX_TELSX_HEADER_EXPIRES_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderExpires, HEADER_EXPIRES )

/* A header with this number of seconds. Aborts unless telsxDeltaSecondsOk. */
RT_API TELSX_HEADER_EXPIRES telsxHeaderExpiresCreate( int64_t deltaSeconds );

/* Seconds, 0 or more. Set aborts unless telsxDeltaSecondsOk. */
RT_API int64_t telsxHeaderExpiresDeltaSeconds( TELSX_HEADER_EXPIRES hdr );
RT_API void telsxHeaderExpiresSetDeltaSeconds( TELSX_HEADER_EXPIRES *hdr, int64_t deltaSeconds );

RT_END

#endif
