// Expires header (RFC 3261, 20.19).
#include "telsx/telsx_header_expires.h"

#include "telsx/telsx_delta_seconds.h"
#include "telsx/telsx_header_of_number.hpp"

using namespace telsx;

struct TELSX_HEADER_EXPIRES_
{
    RT_OBJECT object;
    int64_t deltaSeconds; // 0 or more

    static constexpr auto fields( auto &self ) { return std::tie( self.deltaSeconds ); }
};

TELSX_DEFINE_NUMBER_OBJECT( HeaderExpires, HEADER_EXPIRES, mf, "Expires" )
TELSX_DEFINE_HEADER_OF_NUMBER( HeaderExpires, hdr, "Expires", DeltaSeconds, deltaSeconds, DeltaSeconds )
