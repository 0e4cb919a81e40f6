// Service-Route header (RFC 3608, 5).
#include "telsx/telsx_header_service_route.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_SERVICE_ROUTE_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderServiceRoute, HEADER_SERVICE_ROUTE, hdr, "Service-Route" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderServiceRoute, "Service-Route", Route, Route )
