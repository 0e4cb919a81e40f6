// To header (RFC 3261, 20.39).
#include "telsx/telsx_header_to.h"

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_epid.h"
#include "telsx/telsx_from_to.hpp"
#include "telsx/telsx_header_from.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_tag.h"

using namespace telsx;

struct TELSX_HEADER_TO_ : FromTo
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderTo, HEADER_TO, hdr, "To" )
TELSX_DEFINE_FIELD( HeaderTo, hdr, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderTo, hdr, DisplayName, displayName, telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderTo, hdr, Tag, tag, telsxTagOk( tag ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderTo, hdr, Epid, epid, telsxEpidOk( epid ) )
TELSX_DEFINE_FIELD( HeaderTo, hdr, GenericParams, genericParams, genericParams )

static TELSX_HEADER_TO create() { return rt::create<TELSX_HEADER_TO_>( telsxHeaderToSort() ); }

TELSX_HEADER_TO telsxHeaderToCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    TELSX_HEADER_TO hdr = create();
    hdr->iri = share( iri );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_HEADER_TO telsxHeaderToCreateFromHeaderFrom( TELSX_HEADER_FROM hdrFrom )
{
    TELSX_ASSERT( hdrFrom );
    TELSX_HEADER_TO hdr = create();
    FromTo::fields( *hdr ) = FromTo::fields( *asFromTo( hdrFrom ) );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderToEncode( TELSX_HEADER_TO hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"To">(), encodeFromTo( *hdr ) );
}

static TELSX_HEADER_TO decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_TO> hdr = adopt( create() );
    return decodeFromTo( *hdr.get(), lines.lastText() ) ? hdr.take() : nullptr;
}
