// Authorization header (RFC 3261, 20.7).
#include "telsx/telsx_header_authorization.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_AUTHORIZATION_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAuthorization, HEADER_AUTHORIZATION, hdr, "Authorization" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderAuthorization, "Authorization", Credential, Credentials )
