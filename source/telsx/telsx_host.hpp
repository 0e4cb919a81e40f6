// Hosts, for the units that have already skipped one.
#pragma once

#include "telsx/telsx_host.h"
#include "telsx/telsx_text.hpp"

namespace telsx
{

// The host that the text stands for, all of which telsx___SkipHost accepts; null if it is not a domain name.
Ref<RT_STRING> hostOf( Text text );

} // namespace telsx
