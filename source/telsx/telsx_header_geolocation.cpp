// Geolocation header (RFC 6442, 4.1).
#include "telsx/telsx_header_geolocation.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_GEOLOCATION_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderGeolocation, HEADER_GEOLOCATION, hdr, "Geolocation" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderGeolocation, "Geolocation", LocationValue, LocationValue )
