// Versions inside other elements.
#pragma once

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_version.h"

namespace telsx
{

// What telsx___VersionTryDecode makes of the text, or the shared object if it is SIP/2.0.
Ref<TELSX_VERSION> tryDecodeVersion( Text text );

// Whether it is that shared object, which is written as SIP/2.0.
bool isSharedVersion( TELSX_VERSION version );

} // namespace telsx
