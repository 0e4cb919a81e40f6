// Min-Expires header (RFC 3261, 20.23).
#include "telsx/telsx_header_min_expires.h"

#include "telsx/telsx_delta_seconds.h"
#include "telsx/telsx_header_of_number.hpp"

using namespace telsx;

struct TELSX_HEADER_MIN_EXPIRES_
{
    RT_OBJECT object;
    int64_t deltaSeconds; // 0 or more

    static constexpr auto fields( auto &self ) { return std::tie( self.deltaSeconds ); }
};

TELSX_DEFINE_NUMBER_OBJECT( HeaderMinExpires, HEADER_MIN_EXPIRES, mf, "Min-Expires" )
TELSX_DEFINE_HEADER_OF_NUMBER( HeaderMinExpires, hdr, "Min-Expires", DeltaSeconds, deltaSeconds,
                               DeltaSeconds )
