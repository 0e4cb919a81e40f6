// Registration state (RFC 5502).
#include "telsx/telsx_regstate.h"

#include "telsx/telsx_keyword.hpp"

TELSX_DEFINE_KEYWORD( Regstate, regstate, "unreg", "reg" )
