// P-Served-User header (RFC 5502).
#include "telsx/telsx_header_p_served_user.h"

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_regstate.h"
#include "telsx/telsx_sescase.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_P_SERVED_USER_
{
    RT_OBJECT object;
    Ref<RT_STRING> iri; // never null
    Ref<RT_STRING> displayName;
    Ref<RT_STRING> sescase;                  // lower case
    Ref<RT_STRING> regstate;                 // lower case
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.iri, self.displayName, self.sescase, self.regstate, self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPServedUser, HEADER_P_SERVED_USER, hdr, "P-Served-User" )
TELSX_DEFINE_FIELD( HeaderPServedUser, hdr, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderPServedUser, hdr, DisplayName, displayName,
                             telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( HeaderPServedUser, hdr, Sescase, sescase, telsxSescaseOk( sescase ),
                                    telsxSescaseNormalize )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( HeaderPServedUser, hdr, Regstate, regstate, telsxRegstateOk( regstate ),
                                    telsxRegstateNormalize )
TELSX_DEFINE_FIELD( HeaderPServedUser, hdr, GenericParams, genericParams, genericParams )

static Ref<TELSX_HEADER_P_SERVED_USER> create( Address address )
{
    auto hdr = adopt( rt::create<TELSX_HEADER_P_SERVED_USER_>( telsxHeaderPServedUserSort() ) );
    hdr->iri = std::move( address.iri );
    hdr->displayName = std::move( address.displayName );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_HEADER_P_SERVED_USER telsxHeaderPServedUserCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    return create( { .iri = share( iri ) } ).take();
}

TELSX_MESSAGE_HEADER telsxHeaderPServedUserEncode( TELSX_HEADER_P_SERVED_USER hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = adopt( rtStringCreate() );
    appendAddress( line, hdr->iri, hdr->displayName );
    ParamWriter params( line );
    params.write<"sescase">( hdr->sescase );
    params.write<"regstate">( hdr->regstate );
    params.writeGeneric( hdr->genericParams );
    return createHeader( literal<"P-Served-User">(), line );
}

static TELSX_HEADER_P_SERVED_USER decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    Address address;
    if ( !takeAddress( rest, address ) )
        return nullptr;
    Ref<TELSX_HEADER_P_SERVED_USER> hdr = create( std::move( address ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.readNormal<"sescase">( hdr->sescase, telsx___SkipSescase, telsxSescaseNormalize );
        param.readNormal<"regstate">( hdr->regstate, telsx___SkipRegstate, telsxRegstateNormalize );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}
