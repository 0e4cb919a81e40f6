// P-Preferred-Identity header (RFC 3325, 9.2).
#include "telsx/telsx_header_p_preferred_identity.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_P_PREFERRED_IDENTITY_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPPreferredIdentity, HEADER_P_PREFERRED_IDENTITY, hdr,
                            "P-Preferred-Identity" )
TELSX_DEFINE_VALUE_LIST( HeaderPPreferredIdentity, IdentityValue, IdentityValue, telsx___IdentityValueEncode,
                         ClearIdentityValues )

TELSX_HEADER_P_PREFERRED_IDENTITY telsxHeaderPPreferredIdentityCreate( void )
{
    return createList<TELSX_HEADER_P_PREFERRED_IDENTITY_>( telsxHeaderPPreferredIdentitySort() );
}

TELSX_MESSAGE_HEADER telsxHeaderPPreferredIdentityEncode( TELSX_HEADER_P_PREFERRED_IDENTITY hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"P-Preferred-Identity">(), hdr->values );
}

static TELSX_HEADER_P_PREFERRED_IDENTITY decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_P_PREFERRED_IDENTITY> hdr = adopt( telsxHeaderPPreferredIdentityCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipIdentityValue, WithoutLines::isNull ) ? hdr.take()
                                                                                               : nullptr;
}
