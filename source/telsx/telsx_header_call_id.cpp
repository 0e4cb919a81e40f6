// Call-Id header (RFC 3261, 20.8).
#include "telsx/telsx_header_call_id.h"

#include "telsx/telsx_call_id.h"
#include "telsx/telsx_header.hpp"

using namespace telsx;

struct TELSX_HEADER_CALL_ID_
{
    RT_OBJECT object;
    Ref<RT_STRING> callId; // never null

    static auto fields( auto &self ) { return std::tie( self.callId ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderCallId, HEADER_CALL_ID, id, "Call-Id" )
TELSX_DEFINE_FIELD( HeaderCallId, hdr, CallId, callId, telsxCallIdOk( callId ) )

TELSX_HEADER_CALL_ID telsxHeaderCallIdCreate( RT_STRING callId )
{
    TELSX_ASSERT( telsxCallIdOk( callId ) );
    TELSX_HEADER_CALL_ID hdr = rt::create<TELSX_HEADER_CALL_ID_>( telsxHeaderCallIdSort() );
    hdr->callId = share( callId );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderCallIdEncode( TELSX_HEADER_CALL_ID hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Call-Id">(), hdr->callId );
}

TELSX_HEADER_CALL_ID telsxHeaderCallIdTryDecode( TELSX_MESSAGE_HEADER header )
{
    TELSX_ASSERT_NAME( "Call-Id" );
    RT_STRING line = lastLineOf( header );
    return line && telsxCallIdOk( line ) ? telsxHeaderCallIdCreate( line ) : nullptr;
}
