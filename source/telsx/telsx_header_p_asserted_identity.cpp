// P-Asserted-Identity header (RFC 3325, 9.1).
#include "telsx/telsx_header_p_asserted_identity.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_P_ASSERTED_IDENTITY_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPAssertedIdentity, HEADER_P_ASSERTED_IDENTITY, hdr, "P-Asserted-Identity" )
TELSX_DEFINE_VALUE_LIST( HeaderPAssertedIdentity, IdentityValue, IdentityValue, telsx___IdentityValueEncode,
                         ClearIdentityValues )

TELSX_HEADER_P_ASSERTED_IDENTITY telsxHeaderPAssertedIdentityCreate( void )
{
    return createList<TELSX_HEADER_P_ASSERTED_IDENTITY_>( telsxHeaderPAssertedIdentitySort() );
}

TELSX_MESSAGE_HEADER telsxHeaderPAssertedIdentityEncode( TELSX_HEADER_P_ASSERTED_IDENTITY hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"P-Asserted-Identity">(), hdr->values );
}

static TELSX_HEADER_P_ASSERTED_IDENTITY decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_P_ASSERTED_IDENTITY> hdr = adopt( telsxHeaderPAssertedIdentityCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipIdentityValue, WithoutLines::isNull ) ? hdr.take()
                                                                                               : nullptr;
}
