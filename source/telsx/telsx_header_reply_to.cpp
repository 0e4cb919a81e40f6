// Reply-To header (RFC 3261, 20.31).
#include "telsx/telsx_header_reply_to.h"

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_party.hpp"

using namespace telsx;

struct TELSX_HEADER_REPLY_TO_ : Party
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderReplyTo, HEADER_REPLY_TO, hdr, "Reply-To" )
TELSX_DEFINE_FIELD( HeaderReplyTo, hdr, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_FIELD( HeaderReplyTo, hdr, DisplayName, displayName, telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_OPTION( HeaderReplyTo, hdr, DisplayName, displayName )
TELSX_DEFINE_FIELD( HeaderReplyTo, hdr, GenericParams, genericParams, genericParams )

static TELSX_HEADER_REPLY_TO create()
{
    return rt::create<TELSX_HEADER_REPLY_TO_>( telsxHeaderReplyToSort() );
}

TELSX_HEADER_REPLY_TO telsxHeaderReplyToCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    TELSX_HEADER_REPLY_TO hdr = create();
    hdr->iri = share( iri );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderReplyToEncode( TELSX_HEADER_REPLY_TO hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Reply-To">(), encodeParty( *hdr ) );
}

static TELSX_HEADER_REPLY_TO decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_REPLY_TO> hdr = adopt( create() );
    return decodeParty( *hdr.get(), lines.lastText() ) ? hdr.take() : nullptr;
}
