// History-Info header (RFC 7044, 5).
#include "telsx/telsx_header_history_info.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_HISTORY_INFO_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderHistoryInfo, HEADER_HISTORY_INFO, hdr, "History-Info" )
TELSX_DEFINE_VALUE_LIST( HeaderHistoryInfo, HistoryInfo, HistoryInfo, telsx___HistoryInfoEncode,
                         ClearHistoryInfos )

TELSX_HEADER_HISTORY_INFO telsxHeaderHistoryInfoCreate( void )
{
    return createList<TELSX_HEADER_HISTORY_INFO_>( telsxHeaderHistoryInfoSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderHistoryInfoEncode( TELSX_HEADER_HISTORY_INFO hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"History-Info">(), hdr->values );
}

static TELSX_HEADER_HISTORY_INFO decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_HISTORY_INFO> hdr = adopt( telsxHeaderHistoryInfoCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipHistoryInfo, WithoutLines::isNull ) ? hdr.take()
                                                                                             : nullptr;
}
