// Error-Info header (RFC 3261, 20.18).
#include "telsx/telsx_header_error_info.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_ERROR_INFO_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderErrorInfo, HEADER_ERROR_INFO, hdr, "Error-Info" )
TELSX_DEFINE_VALUE_LIST( HeaderErrorInfo, ErrorInfo, ErrorInfo, telsx___ErrorInfoEncode, ClearErrorInfos )

TELSX_HEADER_ERROR_INFO telsxHeaderErrorInfoCreate( void )
{
    return createList<TELSX_HEADER_ERROR_INFO_>( telsxHeaderErrorInfoSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderErrorInfoEncode( TELSX_HEADER_ERROR_INFO hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Error-Info">(), hdr->values );
}

static TELSX_HEADER_ERROR_INFO decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_ERROR_INFO> hdr = adopt( telsxHeaderErrorInfoCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipErrorInfo, WithoutLines::isNull ) ? hdr.take()
                                                                                           : nullptr;
}
