// Referred-By header (RFC 3892, 3).
#include "telsx/telsx_header_referred_by.h"

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_sip_clean_msg_id.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_REFERRED_BY_
{
    RT_OBJECT object;
    Ref<RT_STRING> iri; // never null
    Ref<RT_STRING> displayName;
    Ref<RT_STRING> cid;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.iri, self.displayName, self.cid, self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderReferredBy, HEADER_REFERRED_BY, hdr, "Referred-By" )
TELSX_DEFINE_FIELD( HeaderReferredBy, hdr, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderReferredBy, hdr, DisplayName, displayName,
                             telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderReferredBy, hdr, Cid, cid, telsxSipCleanMsgIdOk( cid ) )
TELSX_DEFINE_FIELD( HeaderReferredBy, hdr, GenericParams, genericParams, genericParams )

static Ref<TELSX_HEADER_REFERRED_BY> create( Address address )
{
    auto hdr = adopt( rt::create<TELSX_HEADER_REFERRED_BY_>( telsxHeaderReferredBySort() ) );
    hdr->iri = std::move( address.iri );
    hdr->displayName = std::move( address.displayName );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_HEADER_REFERRED_BY telsxHeaderReferredByCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    return create( { .iri = share( iri ) } ).take();
}

TELSX_MESSAGE_HEADER telsxHeaderReferredByEncode( TELSX_HEADER_REFERRED_BY hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = adopt( rtStringCreate() );
    appendAddress( line, hdr->iri, hdr->displayName );
    ParamWriter params( line );
    params.writeInQuotes<"cid">( hdr->cid );
    params.writeGeneric( hdr->genericParams );
    return createHeader( literal<"Referred-By">(), line );
}

static TELSX_HEADER_REFERRED_BY decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    Address address;
    if ( !takeAddress( rest, address ) )
        return nullptr;
    Ref<TELSX_HEADER_REFERRED_BY> hdr = create( std::move( address ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.readInQuotes<"cid", telsx___SkipSipCleanMsgId>( hdr->cid );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}
