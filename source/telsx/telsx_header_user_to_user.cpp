// User-To-User header (RFC 7433, 4.1).
#include "telsx/telsx_header_user_to_user.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_USER_TO_USER_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderUserToUser, HEADER_USER_TO_USER, hdr, "User-To-User" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderUserToUser, "User-To-User", UuiValue, UuiValue )
