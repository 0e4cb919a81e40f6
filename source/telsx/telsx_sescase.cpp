// Session case (RFC 5502).
#include "telsx/telsx_sescase.h"

#include "telsx/telsx_keyword.hpp"

TELSX_DEFINE_KEYWORD( Sescase, sescase, "orig", "term" )
