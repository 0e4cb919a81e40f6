/* Sip-Etag header: the version of the state that a server holds (RFC 3903, 11.3).
 *
 *     SIP-ETag = "SIP-ETag" HCOLON entity-tag */
#ifndef TELSX_TELSX_HEADER_SIP_ETAG_H
#define TELSX_TELSX_HEADER_SIP_ETAG_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderSipEtag, HEADER_SIP_ETAG )
TELSX_FREE_FUNC( HeaderSipEtag )

/* A header with this tag. Aborts unless telsxEntityTagOk. */
RT_API TELSX_HEADER_SIP_ETAG telsxHeaderSipEtagCreate( RT_STRING entityTag );

/* The tag, in its original case, never null. Set aborts unless telsxEntityTagOk. */
RT_API RT_STRING telsxHeaderSipEtagEntityTag( TELSX_HEADER_SIP_ETAG hdr );
RT_API void telsxHeaderSipEtagSetEntityTag( TELSX_HEADER_SIP_ETAG *hdr, RT_STRING entityTag );

RT_END

#endif
