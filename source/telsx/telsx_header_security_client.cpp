// Security-Client header (RFC 3329, 2.2).
#include "telsx/telsx_header_security_client.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_SECURITY_CLIENT_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderSecurityClient, HEADER_SECURITY_CLIENT, hdr, "Security-Client" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderSecurityClient, "Security-Client", SecurityMechanism, SecurityMechanism )
