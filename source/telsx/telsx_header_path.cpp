// Path header (RFC 3327, 4).
#include "telsx/telsx_header_path.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_PATH_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPath, HEADER_PATH, hdr, "Path" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderPath, "Path", Route, Route )
