/* Rack header: which provisional response a PRACK acknowledges (RFC 3262, 7.2).
 *
 *     RAck = "RAck" HCOLON response-num LWS CSeq-num LWS Method */
#ifndef TELSX_TELSX_HEADER_RACK_H
#define TELSX_TELSX_HEADER_RACK_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderRack, HEADER_RACK )
TELSX_FREE_FUNC( HeaderRack )

/* A header with these numbers and this method. Aborts unless telsxResponseNumOk, telsxCseqOk and
 * telsxMethodOk. */
RT_API TELSX_HEADER_RACK telsxHeaderRackCreate( int64_t responseNum, int64_t cseq, RT_STRING method );

/* The number of the response. Set aborts unless telsxResponseNumOk. */
RT_API int64_t telsxHeaderRackResponseNum( TELSX_HEADER_RACK hdr );
RT_API void telsxHeaderRackSetResponseNum( TELSX_HEADER_RACK *hdr, int64_t responseNum );

/* The sequence number of the request, and its method in its original case, never null. SetCseq aborts unless
 * telsxCseqOk, and SetMethod unless telsxMethodOk. */
RT_API int64_t telsxHeaderRackCseq( TELSX_HEADER_RACK hdr );
RT_API void telsxHeaderRackSetCseq( TELSX_HEADER_RACK *hdr, int64_t cseq );
RT_API RT_STRING telsxHeaderRackMethod( TELSX_HEADER_RACK hdr );
RT_API void telsxHeaderRackSetMethod( TELSX_HEADER_RACK *hdr, RT_STRING method );

RT_END

#endif
