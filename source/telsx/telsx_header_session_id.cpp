// Session-Id header (RFC 7989, 5; RFC 7329).
#include "telsx/telsx_header_session_id.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_sess_uuid.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_SESSION_ID_
{
    RT_OBJECT object;
    Ref<RT_STRING> localUuid; // never null
    Ref<RT_STRING> remoteUuid;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.localUuid, self.remoteUuid, self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderSessionId, HEADER_SESSION_ID, hdr, "Session-Id" )
TELSX_DEFINE_FIELD( HeaderSessionId, hdr, LocalUuid, localUuid, telsxSessUuidOk( localUuid ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderSessionId, hdr, RemoteUuid, remoteUuid, telsxSessUuidOk( remoteUuid ) )
TELSX_DEFINE_FIELD( HeaderSessionId, hdr, GenericParams, genericParams, genericParams )

TELSX_HEADER_SESSION_ID telsxHeaderSessionIdCreate( RT_STRING localUuid )
{
    TELSX_ASSERT_OK( telsxSessUuidOk, localUuid );
    TELSX_HEADER_SESSION_ID hdr = rt::create<TELSX_HEADER_SESSION_ID_>( telsxHeaderSessionIdSort() );
    hdr->localUuid = share( localUuid );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderSessionIdEncode( TELSX_HEADER_SESSION_ID hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = hdr->localUuid;
    ParamWriter params( line );
    params.write<"remote">( hdr->remoteUuid );
    params.writeGeneric( hdr->genericParams );
    return createHeader( literal<"Session-Id">(), line );
}

static TELSX_HEADER_SESSION_ID decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    Text localUuid = rest.take( telsx___SkipSessUuid );
    if ( !localUuid )
        return nullptr;
    auto hdr = adopt( telsxHeaderSessionIdCreate( localUuid.copy().get() ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.read<"remote">( hdr->remoteUuid, telsx___SkipSessUuid );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}
