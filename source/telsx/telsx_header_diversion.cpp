// Diversion header (RFC 5806, 4).
#include "telsx/telsx_header_diversion.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_DIVERSION_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderDiversion, HEADER_DIVERSION, hdr, "Diversion" )
TELSX_DEFINE_VALUE_LIST( HeaderDiversion, Diversion, Diversion, telsx___DiversionEncode, ClearDiversions )

TELSX_HEADER_DIVERSION telsxHeaderDiversionCreate( void )
{
    return createList<TELSX_HEADER_DIVERSION_>( telsxHeaderDiversionSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderDiversionEncode( TELSX_HEADER_DIVERSION hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Diversion">(), hdr->values );
}

static TELSX_HEADER_DIVERSION decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_DIVERSION> hdr = adopt( telsxHeaderDiversionCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipDiversion, WithoutLines::isNull ) ? hdr.take()
                                                                                           : nullptr;
}
