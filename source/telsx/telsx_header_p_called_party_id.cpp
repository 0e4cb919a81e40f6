// P-Called-Party-Id header (RFC 3455, 5.2).
#include "telsx/telsx_header_p_called_party_id.h"

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_party.hpp"

using namespace telsx;

struct TELSX_HEADER_P_CALLED_PARTY_ID_ : Party
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPCalledPartyId, HEADER_P_CALLED_PARTY_ID, hdr, "P-Called-Party-Id" )
TELSX_DEFINE_FIELD( HeaderPCalledPartyId, hdr, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_FIELD( HeaderPCalledPartyId, hdr, DisplayName, displayName, telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_OPTION( HeaderPCalledPartyId, hdr, DisplayName, displayName )
TELSX_DEFINE_FIELD( HeaderPCalledPartyId, hdr, GenericParams, genericParams, genericParams )

static TELSX_HEADER_P_CALLED_PARTY_ID create()
{
    return rt::create<TELSX_HEADER_P_CALLED_PARTY_ID_>( telsxHeaderPCalledPartyIdSort() );
}

TELSX_HEADER_P_CALLED_PARTY_ID telsxHeaderPCalledPartyIdCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    TELSX_HEADER_P_CALLED_PARTY_ID hdr = create();
    hdr->iri = share( iri );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderPCalledPartyIdEncode( TELSX_HEADER_P_CALLED_PARTY_ID hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"P-Called-Party-Id">(), encodeParty( *hdr ) );
}

static TELSX_HEADER_P_CALLED_PARTY_ID decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_P_CALLED_PARTY_ID> hdr = adopt( create() );
    return decodeParty( *hdr.get(), lines.lastText() ) ? hdr.take() : nullptr;
}
