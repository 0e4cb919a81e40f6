/* Flow-Timer header: how long a server keeps a flow without a keep-alive (RFC 5626, 10).
 *
 *     Flow-Timer = "Flow-Timer" HCOLON 1*DIGIT */
#ifndef TELSX_TELSX_HEADER_FLOW_TIMER_H
#define TELSX_TELSX_HEADER_FLOW_TIMER_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderFlowTimer, HEADER_FLOW_TIMER )

/* A header with this number of seconds. Aborts unless telsxDeltaSecondsOk. */
RT_API TELSX_HEADER_FLOW_TIMER telsxHeaderFlowTimerCreate( int64_t deltaSeconds );

/* Seconds, 0 or more. Set aborts unless telsxDeltaSecondsOk. */
RT_API int64_t telsxHeaderFlowTimerDeltaSeconds( TELSX_HEADER_FLOW_TIMER hdr );
RT_API void telsxHeaderFlowTimerSetDeltaSeconds( TELSX_HEADER_FLOW_TIMER *hdr, int64_t deltaSeconds );

RT_END

#endif
