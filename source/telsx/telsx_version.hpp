// Versions that are part of something else.
#pragma once

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_version.h"

namespace telsx
{

// What telsx___VersionTryDecode makes of the text, but the shared SIP/2.0 where it is that.
Ref<TELSX_VERSION> tryDecodeVersion( Text text );

} // namespace telsx
