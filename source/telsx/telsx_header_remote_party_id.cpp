// Remote-Party-Id header (draft-ietf-sip-privacy-04, 5).
#include "telsx/telsx_header_remote_party_id.h"

#include "telsx/telsx_party.hpp"

using namespace telsx;

struct TELSX_HEADER_REMOTE_PARTY_ID_ : Party
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRemotePartyId, HEADER_REMOTE_PARTY_ID, hdr, "Remote-Party-Id" )
TELSX_DEFINE_HEADER_OF_PARTY( HeaderRemotePartyId, "Remote-Party-Id" )

static TELSX_HEADER_REMOTE_PARTY_ID decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_REMOTE_PARTY_ID> hdr = adopt( create() );
    return decodeParty( *hdr.get(), lines.lastText() ) ? hdr.take() : nullptr;
}
