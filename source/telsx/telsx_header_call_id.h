/* Call-Id header: the name of a call (RFC 3261, 20.8).
 *
 *     Call-ID = ( "Call-ID" / "i" ) HCOLON callid */
#ifndef TELSX_TELSX_HEADER_CALL_ID_H
#define TELSX_TELSX_HEADER_CALL_ID_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderCallId, HEADER_CALL_ID )
TELSX_FREE_FUNC( HeaderCallId )

/* A header with this call id. Aborts unless telsxCallIdOk. */
RT_API TELSX_HEADER_CALL_ID telsxHeaderCallIdCreate( RT_STRING callId );

/* The call id, in its original case, never null. Set aborts unless telsxCallIdOk. */
RT_API RT_STRING telsxHeaderCallIdCallId( TELSX_HEADER_CALL_ID hdr );
RT_API void telsxHeaderCallIdSetCallId( TELSX_HEADER_CALL_ID *hdr, RT_STRING callId );

RT_END

#endif
