// Reject-Contact header (RFC 3841, 9.2 and 10).
#include "telsx/telsx_header_reject_contact.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_REJECT_CONTACT_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRejectContact, HEADER_REJECT_CONTACT, hdr, "Reject-Contact" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderRejectContact, "Reject-Contact", RejectContact, RejectContact )
