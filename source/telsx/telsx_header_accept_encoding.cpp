// Accept-Encoding header (RFC 3261, 20.2).
#include "telsx/telsx_header_accept_encoding.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_ACCEPT_ENCODING_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAcceptEncoding, HEADER_ACCEPT_ENCODING, hdr, "Accept-Encoding" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderAcceptEncoding, "Accept-Encoding", AcceptEncoding, AcceptEncoding )
