// Diversion header (RFC 5806, 4).
#include "telsx/telsx_header_diversion.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_DIVERSION_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderDiversion, HEADER_DIVERSION, hdr, "Diversion" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderDiversion, "Diversion", Diversion, Diversion )
