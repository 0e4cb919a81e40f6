// Directive (RFC 3841, 10).
#include "telsx/telsx_directive.h"

#include "telsx/telsx_keyword.hpp"

TELSX_DEFINE_KEYWORD( Directive, directive, "proxy", "redirect", "cancel", "no-cancel", "fork", "no-fork",
                      "recurse", "no-recurse", "parallel", "sequential", "queue", "no-queue" )
