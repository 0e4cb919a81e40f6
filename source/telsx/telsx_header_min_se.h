/* Min-Se header: the shortest session interval (RFC 4028, 5).
 *
 *     Min-SE = "Min-SE" HCOLON delta-seconds *( SEMI generic-param )
 *
 * Text after the value and its parameters is ignored unless it begins with a semicolon. Headers sort by the fields in
 * the order below. */
#ifndef TELSX_TELSX_HEADER_MIN_SE_H
#define TELSX_TELSX_HEADER_MIN_SE_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderMinSe, HEADER_MIN_SE )
TELSX_FREE_FUNC( HeaderMinSe )

/* A header with this interval and nothing else. Aborts unless telsxDeltaSecondsOk. */
RT_API TELSX_HEADER_MIN_SE telsxHeaderMinSeCreate( int64_t deltaSeconds );

/* The shortest interval, in seconds. Set aborts unless telsxDeltaSecondsOk. */
RT_API int64_t telsxHeaderMinSeDeltaSeconds( TELSX_HEADER_MIN_SE hdr );
RT_API void telsxHeaderMinSeSetDeltaSeconds( TELSX_HEADER_MIN_SE *hdr, int64_t deltaSeconds );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderMinSeGenericParams( TELSX_HEADER_MIN_SE hdr );
RT_API void telsxHeaderMinSeSetGenericParams( TELSX_HEADER_MIN_SE *hdr, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
