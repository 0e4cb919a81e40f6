// Feature-Caps header (RFC 6809, 6).
#include "telsx/telsx_header_feature_caps.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_FEATURE_CAPS_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderFeatureCaps, HEADER_FEATURE_CAPS, hdr, "Feature-Caps" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderFeatureCaps, "Feature-Caps", FcValue, FcValue )
