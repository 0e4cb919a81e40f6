// Join header (RFC 3911, 7.1).
#include "telsx/telsx_header_join.h"

#include "telsx/telsx_dialog.hpp"

using namespace telsx;

struct TELSX_HEADER_JOIN_
{
    RT_OBJECT object;
    Ref<RT_STRING> callId; // never null
    Ref<RT_STRING> fromTag;
    Ref<RT_STRING> toTag;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.callId, self.fromTag, self.toTag, self.genericParams );
    }
};

TELSX_DEFINE_DIALOG( HeaderJoin, HEADER_JOIN, "Join", FromTag, fromTag, "from-tag", ToTag, toTag, "to-tag" )
