// P-Called-Party-Id header (RFC 3455, 5.2).
#include "telsx/telsx_header_p_called_party_id.h"

#include "telsx/telsx_party.hpp"

using namespace telsx;

struct TELSX_HEADER_P_CALLED_PARTY_ID_ : Party
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPCalledPartyId, HEADER_P_CALLED_PARTY_ID, hdr, "P-Called-Party-Id" )
TELSX_DEFINE_HEADER_OF_PARTY( HeaderPCalledPartyId, "P-Called-Party-Id" )

static TELSX_HEADER_P_CALLED_PARTY_ID decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_P_CALLED_PARTY_ID> hdr = adopt( create() );
    return decodeParty( *hdr.get(), lines.lastText() ) ? hdr.take() : nullptr;
}
