// Max-Breadth (RFC 5393, 5.3.1).
#include "telsx/telsx_max_breadth.h"

RT_BOOL telsxMaxBreadthOk( int64_t maxBreadth ) { return maxBreadth >= 0; }
