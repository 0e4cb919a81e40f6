// Max-Forwards header (RFC 3261, 20.22).
#include "telsx/telsx_header_max_forwards.h"

#include "telsx/telsx_header_of_number.hpp"
#include "telsx/telsx_max_forwards.h"

using namespace telsx;

struct TELSX_HEADER_MAX_FORWARDS_
{
    RT_OBJECT object;
    int64_t maxForwards; // 0 to 255

    static constexpr auto fields( auto &self ) { return std::tie( self.maxForwards ); }
};

TELSX_DEFINE_NUMBER_OBJECT( HeaderMaxForwards, HEADER_MAX_FORWARDS, mf, "Max-Forwards" )
TELSX_DEFINE_HEADER_OF_NUMBER( HeaderMaxForwards, mf, "Max-Forwards", MaxForwards, maxForwards, MaxForwards )
