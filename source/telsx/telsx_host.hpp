// Hosts, for the units that have skipped one.
#pragma once

#include "telsx/telsx_host.h"
#include "telsx/telsx_text.hpp"

namespace telsx
{

// The host that the text, which telsx___SkipHost covers, stands for; null if it is no domain name.
Ref<RT_STRING> hostOf( Text text );

} // namespace telsx
