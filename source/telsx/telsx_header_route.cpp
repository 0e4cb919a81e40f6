// Route header (RFC 3261, 20.34).
#include "telsx/telsx_header_route.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_ROUTE_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRoute, HEADER_ROUTE, hdr, "Route" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderRoute, "Route", Route, Route )
