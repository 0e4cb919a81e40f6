// Organization header (RFC 3261, 20.25).
#include "telsx/telsx_header_organization.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_organization.h"

using namespace telsx;

struct TELSX_HEADER_ORGANIZATION_
{
    RT_OBJECT object;
    Ref<RT_STRING> organization; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.organization ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderOrganization, HEADER_ORGANIZATION, hdr, "Organization" )
TELSX_DEFINE_NORMAL_FIELD( HeaderOrganization, hdr, Organization, organization, organization,
                           telsxOrganizationNormalize )

TELSX_HEADER_ORGANIZATION telsxHeaderOrganizationCreate( RT_STRING organization )
{
    TELSX_ASSERT( organization );
    TELSX_HEADER_ORGANIZATION hdr = rt::create<TELSX_HEADER_ORGANIZATION_>( telsxHeaderOrganizationSort() );
    hdr->organization = adopt( telsxOrganizationNormalize( organization ) );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderOrganizationEncode( TELSX_HEADER_ORGANIZATION hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Organization">(), hdr->organization );
}

static TELSX_HEADER_ORGANIZATION decode( HeaderLines &lines )
{
    RT_STRING line = lines.last();
    return line && telsxOrganizationOk( line ) ? telsxHeaderOrganizationCreate( line ) : nullptr;
}
