// Content-Encoding header (RFC 3261, 20.12).
#include "telsx/telsx_header_content_encoding.h"

#include "telsx/telsx_content_coding.h"
#include "telsx/telsx_token_list.hpp"

using namespace telsx;

struct TELSX_HEADER_CONTENT_ENCODING_ : TokenList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderContentEncoding, HEADER_CONTENT_ENCODING, hdr, "Content-Encoding" )
TELSX_DEFINE_TOKEN_LIST( HeaderContentEncoding, "Content-Encoding", ContentCoding )
