/* Retry-After header: when to try again (RFC 3261, 20.33).
 *
 *     Retry-After = "Retry-After" HCOLON delta-seconds [ comment ] *( SEMI retry-param )
 *     retry-param = ( "duration" EQUAL delta-seconds ) / generic-param
 *
 * A comment is skipped and not kept. Text after the value and its parameters is ignored unless it begins with a
 * semicolon. Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_RETRY_AFTER_H
#define TELSX_TELSX_HEADER_RETRY_AFTER_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderRetryAfter, HEADER_RETRY_AFTER )
TELSX_FREE_FUNC( HeaderRetryAfter )

/* A header with this delay and nothing else. Aborts unless telsxDeltaSecondsOk. */
RT_API TELSX_HEADER_RETRY_AFTER telsxHeaderRetryAfterCreate( int64_t deltaSeconds );

/* The delay, in seconds. Set aborts unless telsxDeltaSecondsOk. */
RT_API int64_t telsxHeaderRetryAfterDeltaSeconds( TELSX_HEADER_RETRY_AFTER hdr );
RT_API void telsxHeaderRetryAfterSetDeltaSeconds( TELSX_HEADER_RETRY_AFTER *hdr, int64_t deltaSeconds );

/* How long the party can then be reached, in seconds, or -1 if absent. Set aborts unless telsxDeltaSecondsOk. */
RT_API int64_t telsxHeaderRetryAfterDuration( TELSX_HEADER_RETRY_AFTER hdr );
RT_API RT_BOOL telsxHeaderRetryAfterHasDuration( TELSX_HEADER_RETRY_AFTER hdr );
RT_API void telsxHeaderRetryAfterSetDuration( TELSX_HEADER_RETRY_AFTER *hdr, int64_t duration );
RT_API void telsxHeaderRetryAfterDelDuration( TELSX_HEADER_RETRY_AFTER *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderRetryAfterGenericParams( TELSX_HEADER_RETRY_AFTER hdr );
RT_API void telsxHeaderRetryAfterSetGenericParams( TELSX_HEADER_RETRY_AFTER *hdr,
                                                   TELSX_GENERIC_PARAMS params );

RT_END

#endif
