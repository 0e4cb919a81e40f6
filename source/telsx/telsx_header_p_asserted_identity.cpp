// P-Asserted-Identity header (RFC 3325, 9.1).
#include "telsx/telsx_header_p_asserted_identity.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_P_ASSERTED_IDENTITY_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPAssertedIdentity, HEADER_P_ASSERTED_IDENTITY, hdr, "P-Asserted-Identity" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderPAssertedIdentity, "P-Asserted-Identity", IdentityValue, IdentityValue )
