// Target-Dialog header (RFC 4538).
#include "telsx/telsx_header_target_dialog.h"

#include "telsx/telsx_dialog.hpp"

using namespace telsx;

struct TELSX_HEADER_TARGET_DIALOG_
{
    RT_OBJECT object;
    Ref<RT_STRING> callId; // never null
    Ref<RT_STRING> localTag;
    Ref<RT_STRING> remoteTag;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.callId, self.localTag, self.remoteTag, self.genericParams );
    }
};

TELSX_DEFINE_DIALOG( HeaderTargetDialog, HEADER_TARGET_DIALOG, "Target-Dialog", LocalTag, localTag,
                     "local-tag", RemoteTag, remoteTag, "remote-tag" )
