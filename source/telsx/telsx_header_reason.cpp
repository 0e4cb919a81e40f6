// Reason header (RFC 3326, 2).
#include "telsx/telsx_header_reason.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_REASON_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderReason, HEADER_REASON, hdr, "Reason" )
TELSX_DEFINE_VALUE_LIST( HeaderReason, Reason, Reason, telsx___ReasonEncode, ClearReasons )

TELSX_HEADER_REASON telsxHeaderReasonCreate( void )
{
    return createList<TELSX_HEADER_REASON_>( telsxHeaderReasonSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderReasonEncode( TELSX_HEADER_REASON hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Reason">(), hdr->values );
}

static TELSX_HEADER_REASON decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_REASON> hdr = adopt( telsxHeaderReasonCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipReason, WithoutLines::isNull ) ? hdr.take()
                                                                                        : nullptr;
}
