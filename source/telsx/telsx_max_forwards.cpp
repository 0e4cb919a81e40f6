// Max-Forwards (RFC 3261, 20.22 and 25.1).
#include "telsx/telsx_max_forwards.h"

RT_BOOL telsxMaxForwardsOk( int64_t maxForwards ) { return maxForwards >= 0 && maxForwards <= 255; }
