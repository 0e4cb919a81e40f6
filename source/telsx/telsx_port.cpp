// Port (RFC 3261, 25.1).
#include "telsx/telsx_port.h"

#include "rsc/rsc.h"

int64_t telsx___SkipPort( const RT_CHAR *chs, int64_t length ) { return rsc___SkipPort( chs, length ); }
