// Accept header (RFC 3261, 20.1).
#include "telsx/telsx_header_accept.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_ACCEPT_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAccept, HEADER_ACCEPT, hdr, "Accept" )
TELSX_DEFINE_VALUE_LIST( HeaderAccept, Accept, Accept, telsx___AcceptEncode, ClearAccepts )

TELSX_HEADER_ACCEPT telsxHeaderAcceptCreate( void )
{
    return createList<TELSX_HEADER_ACCEPT_>( telsxHeaderAcceptSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderAcceptEncode( TELSX_HEADER_ACCEPT hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Accept">(), hdr->values );
}

static TELSX_HEADER_ACCEPT decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_ACCEPT> hdr = adopt( telsxHeaderAcceptCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipAccept, WithoutLines::isNull ) ? hdr.take()
                                                                                        : nullptr;
}
