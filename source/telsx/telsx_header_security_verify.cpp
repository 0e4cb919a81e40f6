// Security-Verify header (RFC 3329, 2.2).
#include "telsx/telsx_header_security_verify.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_SECURITY_VERIFY_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderSecurityVerify, HEADER_SECURITY_VERIFY, hdr, "Security-Verify" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderSecurityVerify, "Security-Verify", SecurityMechanism, SecurityMechanism )
