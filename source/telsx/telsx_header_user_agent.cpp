// User-Agent header (RFC 3261, 20.41).
#include "telsx/telsx_header_user_agent.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_user_agent.h"

using namespace telsx;

struct TELSX_HEADER_USER_AGENT_
{
    RT_OBJECT object;
    Ref<RT_STRING> userAgent; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.userAgent ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderUserAgent, HEADER_USER_AGENT, hdr, "User-Agent" )
TELSX_DEFINE_FIELD( HeaderUserAgent, hdr, UserAgent, userAgent, telsxUserAgentOk( userAgent ) )

TELSX_HEADER_USER_AGENT telsxHeaderUserAgentCreate( RT_STRING userAgent )
{
    TELSX_ASSERT_OK( telsxUserAgentOk, userAgent );
    TELSX_HEADER_USER_AGENT hdr = rt::create<TELSX_HEADER_USER_AGENT_>( telsxHeaderUserAgentSort() );
    hdr->userAgent = share( userAgent );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderUserAgentEncode( TELSX_HEADER_USER_AGENT hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"User-Agent">(), hdr->userAgent );
}

static TELSX_HEADER_USER_AGENT decode( HeaderLines &lines )
{
    RT_STRING line = lines.last();
    return line && telsxUserAgentOk( line ) ? telsxHeaderUserAgentCreate( line ) : nullptr;
}
