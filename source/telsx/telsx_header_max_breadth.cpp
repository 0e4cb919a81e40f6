// Max-Breadth header (RFC 5393, 5.3.1).
#include "telsx/telsx_header_max_breadth.h"

#include "telsx/telsx_header_of_number.hpp"
#include "telsx/telsx_max_breadth.h"

using namespace telsx;

struct TELSX_HEADER_MAX_BREADTH_
{
    RT_OBJECT object;
    int64_t maxBreadth; // 0 or more

    static constexpr auto fields( auto &self ) { return std::tie( self.maxBreadth ); }
};

TELSX_DEFINE_NUMBER_OBJECT( HeaderMaxBreadth, HEADER_MAX_BREADTH, hdr, "Max-Breadth" )
TELSX_DEFINE_HEADER_OF_NUMBER( HeaderMaxBreadth, hdr, "Max-Breadth", MaxBreadth, maxBreadth, MaxBreadth )
