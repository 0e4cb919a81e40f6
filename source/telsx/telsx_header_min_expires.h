/* Min-Expires header: the shortest registration that a registrar accepts (RFC 3261, 20.23).
 *
 *     Min-Expires = "Min-Expires" HCOLON delta-seconds */
#ifndef TELSX_TELSX_HEADER_MIN_EXPIRES_H
#define TELSX_TELSX_HEADER_MIN_EXPIRES_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderMinExpires, HEADER_MIN_EXPIRES )

/* A header with this number of seconds. Aborts unless telsxDeltaSecondsOk. */
RT_API TELSX_HEADER_MIN_EXPIRES telsxHeaderMinExpiresCreate( int64_t deltaSeconds );

/* Seconds, 0 or more. Set aborts unless telsxDeltaSecondsOk. */
RT_API int64_t telsxHeaderMinExpiresDeltaSeconds( TELSX_HEADER_MIN_EXPIRES hdr );
RT_API void telsxHeaderMinExpiresSetDeltaSeconds( TELSX_HEADER_MIN_EXPIRES *hdr, int64_t deltaSeconds );

RT_END

#endif
