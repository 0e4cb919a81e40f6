// Reply-To header (RFC 3261, 20.31).
#include "telsx/telsx_header_reply_to.h"

#include "telsx/telsx_party.hpp"

using namespace telsx;

struct TELSX_HEADER_REPLY_TO_ : Party
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderReplyTo, HEADER_REPLY_TO, hdr, "Reply-To" )
TELSX_DEFINE_HEADER_OF_PARTY( HeaderReplyTo, "Reply-To" )

static TELSX_HEADER_REPLY_TO decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_REPLY_TO> hdr = adopt( create() );
    return decodeParty( *hdr.get(), lines.lastText() ) ? hdr.take() : nullptr;
}
