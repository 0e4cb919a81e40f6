// Method (RFC 3261, 25.1).
#include "telsx/telsx_method.h"

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxMethodOk( RT_STRING method ) { return covers( telsx___SkipMethod, method ); }

int64_t telsx___SkipMethod( const RT_CHAR *chs, int64_t length ) { return telsx___SkipToken( chs, length ); }
