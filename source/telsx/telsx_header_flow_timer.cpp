// Flow-Timer header (RFC 5626, 10).
#include "telsx/telsx_header_flow_timer.h"

#include "telsx/telsx_delta_seconds.h"
#include "telsx/telsx_header_of_number.hpp"

using namespace telsx;

struct TELSX_HEADER_FLOW_TIMER_
{
    RT_OBJECT object;
    int64_t deltaSeconds; // 0 or more

    static constexpr auto fields( auto &self ) { return std::tie( self.deltaSeconds ); }
};

TELSX_DEFINE_NUMBER_OBJECT( HeaderFlowTimer, HEADER_FLOW_TIMER, hdr, "Flow-Timer" )
TELSX_DEFINE_HEADER_OF_NUMBER( HeaderFlowTimer, hdr, "Flow-Timer", DeltaSeconds, deltaSeconds, DeltaSeconds )
