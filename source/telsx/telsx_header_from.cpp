// From header (RFC 3261, 20.20).
#include "telsx/telsx_header_from.h"

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_epid.h"
#include "telsx/telsx_from_to.hpp"
#include "telsx/telsx_header_to.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_tag.h"

using namespace telsx;

struct TELSX_HEADER_FROM_ : FromTo
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderFrom, HEADER_FROM, hdr, "From" )
TELSX_DEFINE_FIELD( HeaderFrom, hdr, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderFrom, hdr, DisplayName, displayName, telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderFrom, hdr, Tag, tag, telsxTagOk( tag ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderFrom, hdr, Epid, epid, telsxEpidOk( epid ) )
TELSX_DEFINE_FIELD( HeaderFrom, hdr, GenericParams, genericParams, genericParams )

static TELSX_HEADER_FROM create() { return rt::create<TELSX_HEADER_FROM_>( telsxHeaderFromSort() ); }

TELSX_HEADER_FROM telsxHeaderFromCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    TELSX_HEADER_FROM hdr = create();
    hdr->iri = share( iri );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_HEADER_FROM telsxHeaderFromCreateFromHeaderTo( TELSX_HEADER_TO hdrTo )
{
    TELSX_ASSERT( hdrTo );
    TELSX_HEADER_FROM hdr = create();
    FromTo::fields( *hdr ) = FromTo::fields( *asFromTo( hdrTo ) );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderFromEncode( TELSX_HEADER_FROM hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"From">(), encodeFromTo( *hdr ) );
}

static TELSX_HEADER_FROM decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_FROM> hdr = adopt( create() );
    return decodeFromTo( *hdr.get(), lines.lastText() ) ? hdr.take() : nullptr;
}
