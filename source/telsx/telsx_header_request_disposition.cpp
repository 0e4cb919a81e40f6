// Request-Disposition header (RFC 3841, 9.1 and 10).
#include "telsx/telsx_header_request_disposition.h"

#include "telsx/telsx_directive.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_REQUEST_DISPOSITION_ : TokenSet
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRequestDisposition, HEADER_REQUEST_DISPOSITION, hdr, "Request-Disposition" )
TELSX_DEFINE_TOKEN_SET( HeaderRequestDisposition, "Request-Disposition", Directive, telsxDirectiveNormalize,
                        comma )
