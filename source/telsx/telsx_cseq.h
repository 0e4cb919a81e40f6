/* Sequence number of a request in its dialog.
 *
 *     CSeq = 1*DIGIT LWS Method, of which this is the number
 *
 * (RFC 3261, 8.1.1.5 and 25.1) */
#ifndef TELSX_TELSX_CSEQ_H
#define TELSX_TELSX_CSEQ_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the number is from 0 to 2147483647. */
RT_API RT_BOOL telsxCseqOk( int64_t cseq );

/* Whether the next number is valid too; whether fewer than 100 numbers are left. Both abort unless telsxCseqOk. */
RT_API RT_BOOL telsxCseqIncrementOk( int64_t cseq );
RT_API RT_BOOL telsxCseqScarce( int64_t cseq );

RT_END

#endif
