// Response number (RFC 3262, 7.1).
#include "telsx/telsx_response_num.h"

#include "telsx/telsx_frame.hpp"

using namespace telsx;

RT_BOOL telsxResponseNumOk( int64_t responseNum ) { return responseNum >= 1 && responseNum <= UINT32_MAX; }

RT_BOOL telsxResponseNumIncrementOk( int64_t responseNum )
{
    TELSX_ASSERT( telsxResponseNumOk( responseNum ) );
    return telsxResponseNumOk( responseNum + 1 );
}
