// Accept-Encoding header (RFC 3261, 20.2).
#include "telsx/telsx_header_accept_encoding.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_ACCEPT_ENCODING_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAcceptEncoding, HEADER_ACCEPT_ENCODING, hdr, "Accept-Encoding" )
TELSX_DEFINE_VALUE_LIST( HeaderAcceptEncoding, AcceptEncoding, AcceptEncoding, telsx___AcceptEncodingEncode,
                         ClearAcceptEncodings )

TELSX_HEADER_ACCEPT_ENCODING telsxHeaderAcceptEncodingCreate( void )
{
    return createList<TELSX_HEADER_ACCEPT_ENCODING_>( telsxHeaderAcceptEncodingSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderAcceptEncodingEncode( TELSX_HEADER_ACCEPT_ENCODING hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Accept-Encoding">(), hdr->values );
}

static TELSX_HEADER_ACCEPT_ENCODING decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_ACCEPT_ENCODING> hdr = adopt( telsxHeaderAcceptEncodingCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipAcceptEncoding, WithoutLines::isNull ) ? hdr.take()
                                                                                                : nullptr;
}
