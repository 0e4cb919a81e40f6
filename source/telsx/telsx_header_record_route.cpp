// Record-Route header (RFC 3261, 20.30).
#include "telsx/telsx_header_record_route.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_RECORD_ROUTE_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRecordRoute, HEADER_RECORD_ROUTE, hdr, "Record-Route" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderRecordRoute, "Record-Route", Route, Route )
