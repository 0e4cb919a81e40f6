// Server header (RFC 3261, 20.35).
#include "telsx/telsx_header_server.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_server.h"

using namespace telsx;

struct TELSX_HEADER_SERVER_
{
    RT_OBJECT object;
    Ref<RT_STRING> server; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.server ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderServer, HEADER_SERVER, hdr, "Server" )
TELSX_DEFINE_FIELD( HeaderServer, hdr, Server, server, telsxServerOk( server ) )

TELSX_HEADER_SERVER telsxHeaderServerCreate( RT_STRING server )
{
    TELSX_ASSERT_OK( telsxServerOk, server );
    TELSX_HEADER_SERVER hdr = rt::create<TELSX_HEADER_SERVER_>( telsxHeaderServerSort() );
    hdr->server = share( server );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderServerEncode( TELSX_HEADER_SERVER hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Server">(), hdr->server );
}

static TELSX_HEADER_SERVER decode( HeaderLines &lines )
{
    RT_STRING line = lines.last();
    return line && telsxServerOk( line ) ? telsxHeaderServerCreate( line ) : nullptr;
}
