// P-Associated-Uri header (RFC 7315, 5.1).
#include "telsx/telsx_header_p_associated_uri.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_P_ASSOCIATED_URI_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPAssociatedUri, HEADER_P_ASSOCIATED_URI, hdr, "P-Associated-Uri" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderPAssociatedUri, "P-Associated-Uri", AssociatedUri, AssociatedUri )
