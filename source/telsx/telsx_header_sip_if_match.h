/* Sip-If-Match header: the version of the state that a request is about (RFC 3903, 11.3).
 *
 *     SIP-If-Match = "SIP-If-Match" HCOLON entity-tag */
#ifndef TELSX_TELSX_HEADER_SIP_IF_MATCH_H
#define TELSX_TELSX_HEADER_SIP_IF_MATCH_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderSipIfMatch, HEADER_SIP_IF_MATCH )
TELSX_FREE_FUNC( HeaderSipIfMatch )

/* A header with this tag. Aborts unless telsxEntityTagOk. */
RT_API TELSX_HEADER_SIP_IF_MATCH telsxHeaderSipIfMatchCreate( RT_STRING entityTag );

/* The tag, in its original case, never null. Set aborts unless telsxEntityTagOk. */
RT_API RT_STRING telsxHeaderSipIfMatchEntityTag( TELSX_HEADER_SIP_IF_MATCH hdr );
RT_API void telsxHeaderSipIfMatchSetEntityTag( TELSX_HEADER_SIP_IF_MATCH *hdr, RT_STRING entityTag );

RT_END

#endif
