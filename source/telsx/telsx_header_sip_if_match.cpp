// Sip-If-Match header (RFC 3903, 11.3).
#include "telsx/telsx_header_sip_if_match.h"

#include "telsx/telsx_entity_tag.h"
#include "telsx/telsx_header_of_text.hpp"

using namespace telsx;

struct TELSX_HEADER_SIP_IF_MATCH_
{
    RT_OBJECT object;
    Ref<RT_STRING> entityTag; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.entityTag ); }
};

TELSX_DEFINE_HEADER_OF_TEXT( HeaderSipIfMatch, HEADER_SIP_IF_MATCH, "Sip-If-Match", EntityTag, entityTag )
