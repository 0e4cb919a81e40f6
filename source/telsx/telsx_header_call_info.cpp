// Call-Info header (RFC 3261, 20.9).
#include "telsx/telsx_header_call_info.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_CALL_INFO_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderCallInfo, HEADER_CALL_INFO, hdr, "Call-Info" )
TELSX_DEFINE_VALUE_LIST( HeaderCallInfo, CallInfo, CallInfo, telsx___CallInfoEncode, ClearCallInfos )

TELSX_HEADER_CALL_INFO telsxHeaderCallInfoCreate( void )
{
    return createList<TELSX_HEADER_CALL_INFO_>( telsxHeaderCallInfoSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderCallInfoEncode( TELSX_HEADER_CALL_INFO hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Call-Info">(), hdr->values );
}

static TELSX_HEADER_CALL_INFO decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_CALL_INFO> hdr = adopt( telsxHeaderCallInfoCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipCallInfo, WithoutLines::isNull ) ? hdr.take()
                                                                                          : nullptr;
}
