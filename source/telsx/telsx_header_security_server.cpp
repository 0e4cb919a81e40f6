// Security-Server header (RFC 3329, 2.2).
#include "telsx/telsx_header_security_server.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_SECURITY_SERVER_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderSecurityServer, HEADER_SECURITY_SERVER, hdr, "Security-Server" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderSecurityServer, "Security-Server", SecurityMechanism, SecurityMechanism )
