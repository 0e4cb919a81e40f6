// Remote-Party-Id header (draft-ietf-sip-privacy-04, 5).
#include "telsx/telsx_header_remote_party_id.h"

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_party.hpp"

using namespace telsx;

struct TELSX_HEADER_REMOTE_PARTY_ID_ : Party
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRemotePartyId, HEADER_REMOTE_PARTY_ID, hdr, "Remote-Party-Id" )
TELSX_DEFINE_FIELD( HeaderRemotePartyId, hdr, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_FIELD( HeaderRemotePartyId, hdr, DisplayName, displayName, telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_OPTION( HeaderRemotePartyId, hdr, DisplayName, displayName )
TELSX_DEFINE_FIELD( HeaderRemotePartyId, hdr, GenericParams, genericParams, genericParams )

static TELSX_HEADER_REMOTE_PARTY_ID create()
{
    return rt::create<TELSX_HEADER_REMOTE_PARTY_ID_>( telsxHeaderRemotePartyIdSort() );
}

TELSX_HEADER_REMOTE_PARTY_ID telsxHeaderRemotePartyIdCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    TELSX_HEADER_REMOTE_PARTY_ID hdr = create();
    hdr->iri = share( iri );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderRemotePartyIdEncode( TELSX_HEADER_REMOTE_PARTY_ID hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Remote-Party-Id">(), encodeParty( *hdr ) );
}

static TELSX_HEADER_REMOTE_PARTY_ID decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_REMOTE_PARTY_ID> hdr = adopt( create() );
    return decodeParty( *hdr.get(), lines.lastText() ) ? hdr.take() : nullptr;
}
