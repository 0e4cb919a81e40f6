// Sequence number of a request in its dialog (RFC 3261, 8.1.1.5 and 25.1).
#include "telsx/telsx_cseq.h"

#include "telsx/telsx_frame.hpp"

using namespace telsx;

RT_BOOL telsxCseqOk( int64_t cseq ) { return cseq >= 0 && cseq <= INT32_MAX; }

RT_BOOL telsxCseqIncrementOk( int64_t cseq )
{
    TELSX_ASSERT( telsxCseqOk( cseq ) );
    return telsxCseqOk( cseq + 1 );
}

RT_BOOL telsxCseqScarce( int64_t cseq )
{
    TELSX_ASSERT( telsxCseqOk( cseq ) );
    return !telsxCseqOk( cseq + 100 );
}
