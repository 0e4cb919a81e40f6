/* Rseq header: the number of a reliable provisional response (RFC 3262, 7.1).
 *
 *     RSeq = "RSeq" HCOLON response-num */
#ifndef TELSX_TELSX_HEADER_RSEQ_H
#define TELSX_TELSX_HEADER_RSEQ_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderRseq, HEADER_RSEQ )
TELSX_FREE_FUNC( HeaderRseq )

/* A header with this number. Aborts unless telsxResponseNumOk. */
RT_API TELSX_HEADER_RSEQ telsxHeaderRseqCreate( int64_t responseNum );

/* The number, 1 to 4294967295. Set aborts unless telsxResponseNumOk. */
RT_API int64_t telsxHeaderRseqResponseNum( TELSX_HEADER_RSEQ hdr );
RT_API void telsxHeaderRseqSetResponseNum( TELSX_HEADER_RSEQ *hdr, int64_t responseNum );

RT_END

#endif
