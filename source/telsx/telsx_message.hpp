// The inside of a message.
#pragma once

#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_message.h"

struct TELSX_MESSAGE_
{
    RT_OBJECT object;
    rt::Ref<TELSX_MESSAGE_FRAGMENT> fragment; // a request or a response, never null

    static constexpr auto fields( auto &self ) { return std::tie( self.fragment ); }
};
