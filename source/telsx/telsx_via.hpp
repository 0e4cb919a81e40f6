// Via values, for the header that cuts them out of its lines.
#pragma once

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_via.h"

namespace telsx
{

// Takes the value at the start away; null for bad text. What is left may be part of what telsx___SkipVia takes,
// unless a comma opens it.
Ref<TELSX_VIA> takeVia( Text &rest );

} // namespace telsx
