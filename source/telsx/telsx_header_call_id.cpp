// Call-Id header (RFC 3261, 20.8).
#include "telsx/telsx_header_call_id.h"

#include "telsx/telsx_call_id.h"
#include "telsx/telsx_header.hpp"

using namespace telsx;

struct TELSX_HEADER_CALL_ID_
{
    RT_OBJECT object;
    Ref<RT_STRING> callId; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.callId ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderCallId, HEADER_CALL_ID, id, "Call-Id" )
TELSX_DEFINE_FIELD( HeaderCallId, hdr, CallId, callId, telsxCallIdOk( callId ) )

static TELSX_HEADER_CALL_ID create( Ref<RT_STRING> callId )
{
    TELSX_HEADER_CALL_ID hdr = rt::create<TELSX_HEADER_CALL_ID_>( telsxHeaderCallIdSort() );
    hdr->callId = std::move( callId );
    return hdr;
}

TELSX_HEADER_CALL_ID telsxHeaderCallIdCreate( RT_STRING callId )
{
    TELSX_ASSERT_OK( telsxCallIdOk, callId );
    return create( share( callId ) );
}

TELSX_MESSAGE_HEADER telsxHeaderCallIdEncode( TELSX_HEADER_CALL_ID hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Call-Id">(), hdr->callId );
}

static TELSX_HEADER_CALL_ID decode( HeaderLines &lines )
{
    Text line = lines.lastText();
    return covers( telsx___SkipCallId, line ) ? create( line.copy() ) : nullptr;
}
