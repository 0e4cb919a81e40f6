// Identity header (RFC 8224, 4).
#include "telsx/telsx_header_identity.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_IDENTITY_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderIdentity, HEADER_IDENTITY, hdr, "Identity" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderIdentity, "Identity", Passport, Passport )
