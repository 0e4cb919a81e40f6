// Accept header (RFC 3261, 20.1).
#include "telsx/telsx_header_accept.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_ACCEPT_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAccept, HEADER_ACCEPT, hdr, "Accept" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderAccept, "Accept", Accept, Accept )
