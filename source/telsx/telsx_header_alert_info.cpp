// Alert-Info header (RFC 3261, 20.4).
#include "telsx/telsx_header_alert_info.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_ALERT_INFO_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAlertInfo, HEADER_ALERT_INFO, hdr, "Alert-Info" )
TELSX_DEFINE_VALUE_LIST( HeaderAlertInfo, AlertInfo, AlertInfo, telsx___AlertInfoEncode, ClearAlertInfos )

TELSX_HEADER_ALERT_INFO telsxHeaderAlertInfoCreate( void )
{
    return createList<TELSX_HEADER_ALERT_INFO_>( telsxHeaderAlertInfoSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderAlertInfoEncode( TELSX_HEADER_ALERT_INFO hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Alert-Info">(), hdr->values );
}

static TELSX_HEADER_ALERT_INFO decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_ALERT_INFO> hdr = adopt( telsxHeaderAlertInfoCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipAlertInfo, WithoutLines::isNull ) ? hdr.take()
                                                                                           : nullptr;
}
