// Www-Authenticate header (RFC 3261, 20.44).
#include "telsx/telsx_header_www_authenticate.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_WWW_AUTHENTICATE_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderWwwAuthenticate, HEADER_WWW_AUTHENTICATE, hdr, "Www-Authenticate" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderWwwAuthenticate, "Www-Authenticate", Challenge, Challenge )
