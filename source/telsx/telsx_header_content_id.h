/* Content-Id header: the name of a body (RFC 8262, 3).
 *
 *     Content-ID = "Content-ID" HCOLON msg-id
 *     msg-id = "<" id-left "@" id-right ">" */
#ifndef TELSX_TELSX_HEADER_CONTENT_ID_H
#define TELSX_TELSX_HEADER_CONTENT_ID_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderContentId, HEADER_CONTENT_ID )
TELSX_FREE_FUNC( HeaderContentId )

/* A header with this id. Aborts unless telsxMsgIdOk. */
RT_API TELSX_HEADER_CONTENT_ID telsxHeaderContentIdCreate( RT_STRING msgId );

/* The id without its angle brackets, in its original case, never null. The address "cid:" and the id, with escapes where
 * an address needs them, is the body's. Set aborts unless telsxMsgIdOk. */
RT_API RT_STRING telsxHeaderContentIdMsgId( TELSX_HEADER_CONTENT_ID hdr );
RT_API void telsxHeaderContentIdSetMsgId( TELSX_HEADER_CONTENT_ID *hdr, RT_STRING msgId );

RT_END

#endif
