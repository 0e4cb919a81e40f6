// Accept-Contact header (RFC 3841, 9.2 and 10).
#include "telsx/telsx_header_accept_contact.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_ACCEPT_CONTACT_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAcceptContact, HEADER_ACCEPT_CONTACT, hdr, "Accept-Contact" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderAcceptContact, "Accept-Contact", AcceptContact, AcceptContact )
