// Via values, for the header that cuts them from its lines.
#pragma once

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_via.h"

namespace telsx
{

// Takes the value at the start; null for bad text. The rest may still be part of what telsx___SkipVia matches, unless
// it begins with a comma.
Ref<TELSX_VIA> takeVia( Text &rest );

} // namespace telsx
