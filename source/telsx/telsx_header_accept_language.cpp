// Accept-Language header (RFC 3261, 20.3).
#include "telsx/telsx_header_accept_language.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_ACCEPT_LANGUAGE_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAcceptLanguage, HEADER_ACCEPT_LANGUAGE, hdr, "Accept-Language" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderAcceptLanguage, "Accept-Language", AcceptLanguage, AcceptLanguage )
