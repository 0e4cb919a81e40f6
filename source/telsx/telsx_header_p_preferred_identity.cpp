// P-Preferred-Identity header (RFC 3325, 9.2).
#include "telsx/telsx_header_p_preferred_identity.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_P_PREFERRED_IDENTITY_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPPreferredIdentity, HEADER_P_PREFERRED_IDENTITY, hdr,
                            "P-Preferred-Identity" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderPPreferredIdentity, "P-Preferred-Identity", IdentityValue,
                               IdentityValue )
