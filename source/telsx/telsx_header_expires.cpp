// Expires header (RFC 3261, 20.19).
#include "telsx/telsx_header_expires.h"

#include "telsx/telsx_delta_seconds.h"
#include "telsx/telsx_header.hpp"

using namespace telsx;

struct TELSX_HEADER_EXPIRES_
{
    RT_OBJECT object;
    int64_t deltaSeconds; // 0 or more

    static constexpr auto fields( auto &self ) { return std::tie( self.deltaSeconds ); }
};

TELSX_DEFINE_OBJECT( HeaderExpires, HEADER_EXPIRES, nullptr, telsx___HeaderExpiresCompareFunc,
                     telsx___HeaderExpiresToStringFunc )
TELSX_DEFINE_COMPARE_FUNC( HeaderExpires, mf )
TELSX_DEFINE_HEADER( HeaderExpires, "Expires" )
TELSX_DEFINE_FIELD( HeaderExpires, hdr, DeltaSeconds, deltaSeconds, telsxDeltaSecondsOk( deltaSeconds ) )

TELSX_HEADER_EXPIRES telsxHeaderExpiresCreate( int64_t deltaSeconds )
{
    TELSX_ASSERT( telsxDeltaSecondsOk( deltaSeconds ) );
    TELSX_HEADER_EXPIRES hdr = rt::create<TELSX_HEADER_EXPIRES_>( telsxHeaderExpiresSort() );
    hdr->deltaSeconds = deltaSeconds;
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderExpiresEncode( TELSX_HEADER_EXPIRES hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Expires">(), adopt( telsx___DeltaSecondsEncode( hdr->deltaSeconds ) ) );
}

static TELSX_HEADER_EXPIRES decode( HeaderLines &lines )
{
    int64_t deltaSeconds = lines.lastText().as( telsx___DeltaSecondsTryDecode );
    return deltaSeconds == -1 ? nullptr : telsxHeaderExpiresCreate( deltaSeconds );
}
