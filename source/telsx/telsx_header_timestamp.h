/* Timestamp header: when a request was sent (RFC 3261, 20.38).
 *
 *     Timestamp = "Timestamp" HCOLON 1*DIGIT [ "." *DIGIT ] [ LWS delay ] */
#ifndef TELSX_TELSX_HEADER_TIMESTAMP_H
#define TELSX_TELSX_HEADER_TIMESTAMP_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderTimestamp, HEADER_TIMESTAMP )
TELSX_FREE_FUNC( HeaderTimestamp )

/* A header with this text. Aborts unless telsxTimestampValueOk. */
RT_API TELSX_HEADER_TIMESTAMP telsxHeaderTimestampCreate( RT_STRING timestampValue );

/* The text, as it stands, never null. Set aborts unless telsxTimestampValueOk. */
RT_API RT_STRING telsxHeaderTimestampTimestampValue( TELSX_HEADER_TIMESTAMP hdr );
RT_API void telsxHeaderTimestampSetTimestampValue( TELSX_HEADER_TIMESTAMP *hdr, RT_STRING timestampValue );

RT_END

#endif
