/* Cseq header: the sequence number of a request and its method (RFC 3261, 20.16).
 *
 *     CSeq = "CSeq" HCOLON 1*DIGIT LWS Method */
#ifndef TELSX_TELSX_HEADER_CSEQ_H
#define TELSX_TELSX_HEADER_CSEQ_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderCseq, HEADER_CSEQ )
TELSX_FREE_FUNC( HeaderCseq )

/* A header with this number and method. Aborts unless telsxCseqOk and telsxMethodOk. */
RT_API TELSX_HEADER_CSEQ telsxHeaderCseqCreate( int64_t cseq, RT_STRING method );

/* The number. Set aborts unless telsxCseqOk. */
RT_API int64_t telsxHeaderCseqCseq( TELSX_HEADER_CSEQ hdr );
RT_API void telsxHeaderCseqSetCseq( TELSX_HEADER_CSEQ *hdr, int64_t cseq );

/* The method, in its original case, never null. Set aborts unless telsxMethodOk. */
RT_API RT_STRING telsxHeaderCseqMethod( TELSX_HEADER_CSEQ hdr );
RT_API void telsxHeaderCseqSetMethod( TELSX_HEADER_CSEQ *hdr, RT_STRING method );
RT_API void telsxHeaderCseqSetMethodCstr( TELSX_HEADER_CSEQ *hdr, const char *chars, int64_t length );
RT_API void telsxHeaderCseqSetMethodWcstr( TELSX_HEADER_CSEQ *hdr, const wchar_t *chars, int64_t length );

RT_END

#endif
