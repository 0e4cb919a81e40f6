/* Feature-Caps header: what the proxies on the way support (RFC 6809, 6).
 *
 *     Feature-Caps = "Feature-Caps" HCOLON fc-value *( COMMA fc-value )
 *
 * A list of values of telsx_fc_value.h. */
#ifndef TELSX_TELSX_HEADER_FEATURE_CAPS_H
#define TELSX_TELSX_HEADER_FEATURE_CAPS_H

#include "telsx/telsx_fc_value.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderFeatureCaps, HEADER_FEATURE_CAPS, FcValue, FC_VALUE )

RT_END

#endif
