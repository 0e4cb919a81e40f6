// Min-Expires header (RFC 3261, 20.23).
#include "telsx/telsx_header_min_expires.h"

#include "telsx/telsx_delta_seconds.h"
#include "telsx/telsx_header.hpp"

using namespace telsx;

struct TELSX_HEADER_MIN_EXPIRES_
{
    RT_OBJECT object;
    int64_t deltaSeconds; // 0 or more

    static constexpr auto fields( auto &self ) { return std::tie( self.deltaSeconds ); }
};

TELSX_DEFINE_OBJECT( HeaderMinExpires, HEADER_MIN_EXPIRES, nullptr, telsx___HeaderMinExpiresCompareFunc,
                     telsx___HeaderMinExpiresToStringFunc )
TELSX_DEFINE_COMPARE_FUNC( HeaderMinExpires, mf )
TELSX_DEFINE_HEADER( HeaderMinExpires, "Min-Expires" )
TELSX_DEFINE_FIELD( HeaderMinExpires, hdr, DeltaSeconds, deltaSeconds, telsxDeltaSecondsOk( deltaSeconds ) )

TELSX_HEADER_MIN_EXPIRES telsxHeaderMinExpiresCreate( int64_t deltaSeconds )
{
    TELSX_ASSERT( telsxDeltaSecondsOk( deltaSeconds ) );
    TELSX_HEADER_MIN_EXPIRES hdr = rt::create<TELSX_HEADER_MIN_EXPIRES_>( telsxHeaderMinExpiresSort() );
    hdr->deltaSeconds = deltaSeconds;
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderMinExpiresEncode( TELSX_HEADER_MIN_EXPIRES hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Min-Expires">(), adopt( telsx___DeltaSecondsEncode( hdr->deltaSeconds ) ) );
}

static TELSX_HEADER_MIN_EXPIRES decode( HeaderLines &lines )
{
    int64_t deltaSeconds = lines.lastText().as( telsx___DeltaSecondsTryDecode );
    return deltaSeconds == -1 ? nullptr : telsxHeaderMinExpiresCreate( deltaSeconds );
}
