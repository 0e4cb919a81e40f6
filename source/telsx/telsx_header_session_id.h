/* Session-Id header: the name of a session, which no server on its way changes (RFC 7989, 5).
 *
 *     session-ID = "Session-ID" HCOLON session-ID-value
 *     session-ID-value = local-uuid *( SEMI sess-id-param )
 *     sess-id-param = remote-param / generic-param
 *     remote-param = "remote" EQUAL remote-uuid
 *     local-uuid, remote-uuid = sess-uuid / nil
 *
 * The header of RFC 7329 is one without the remote UUID. Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_SESSION_ID_H
#define TELSX_TELSX_HEADER_SESSION_ID_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderSessionId, HEADER_SESSION_ID )
TELSX_FREE_FUNC( HeaderSessionId )

/* A header with this local UUID and nothing else. Aborts unless telsxSessUuidOk. */
RT_API TELSX_HEADER_SESSION_ID telsxHeaderSessionIdCreate( RT_STRING localUuid );

/* The UUID of the sender, all zeros if it is nil, never null. Set aborts unless telsxSessUuidOk. */
RT_API RT_STRING telsxHeaderSessionIdLocalUuid( TELSX_HEADER_SESSION_ID hdr );
RT_API void telsxHeaderSessionIdSetLocalUuid( TELSX_HEADER_SESSION_ID *hdr, RT_STRING localUuid );

/* The UUID of the receiver, all zeros if it is nil, or null. Set aborts unless telsxSessUuidOk. */
RT_API RT_STRING telsxHeaderSessionIdRemoteUuid( TELSX_HEADER_SESSION_ID hdr );
RT_API RT_BOOL telsxHeaderSessionIdHasRemoteUuid( TELSX_HEADER_SESSION_ID hdr );
RT_API void telsxHeaderSessionIdSetRemoteUuid( TELSX_HEADER_SESSION_ID *hdr, RT_STRING remoteUuid );
RT_API void telsxHeaderSessionIdDelRemoteUuid( TELSX_HEADER_SESSION_ID *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderSessionIdGenericParams( TELSX_HEADER_SESSION_ID hdr );
RT_API void telsxHeaderSessionIdSetGenericParams( TELSX_HEADER_SESSION_ID *hdr,
                                                  TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
