// Session-Expires header (RFC 4028, 4).
#include "telsx/telsx_header_session_expires.h"

#include "telsx/telsx_delta_seconds.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_refresher.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_SESSION_EXPIRES_
{
    RT_OBJECT object;
    int64_t deltaSeconds;
    Ref<RT_STRING> refresher;                // lower case
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.deltaSeconds, self.refresher, self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderSessionExpires, HEADER_SESSION_EXPIRES, hdr, "Session-Expires" )
TELSX_DEFINE_FIELD( HeaderSessionExpires, hdr, DeltaSeconds, deltaSeconds,
                    telsxDeltaSecondsOk( deltaSeconds ) )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( HeaderSessionExpires, hdr, Refresher, refresher,
                                    telsxRefresherOk( refresher ), telsxRefresherNormalize )
TELSX_DEFINE_FIELD( HeaderSessionExpires, hdr, GenericParams, genericParams, genericParams )

TELSX_HEADER_SESSION_EXPIRES telsxHeaderSessionExpiresCreate( int64_t deltaSeconds )
{
    TELSX_ASSERT( telsxDeltaSecondsOk( deltaSeconds ) );
    TELSX_HEADER_SESSION_EXPIRES hdr =
        rt::create<TELSX_HEADER_SESSION_EXPIRES_>( telsxHeaderSessionExpiresSort() );
    hdr->deltaSeconds = deltaSeconds;
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderSessionExpiresEncode( TELSX_HEADER_SESSION_EXPIRES hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = adopt( telsx___DeltaSecondsEncode( hdr->deltaSeconds ) );
    ParamWriter params( line );
    params.write<"refresher">( hdr->refresher );
    params.writeGeneric( hdr->genericParams );
    return createHeader( literal<"Session-Expires">(), line );
}

static TELSX_HEADER_SESSION_EXPIRES decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    int64_t deltaSeconds = rest.take( telsx___SkipDeltaSeconds ).as( telsx___DeltaSecondsTryDecode );
    if ( deltaSeconds == -1 )
        return nullptr;
    auto hdr = adopt( telsxHeaderSessionExpiresCreate( deltaSeconds ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.readNormal<"refresher">( hdr->refresher, telsx___SkipRefresher, telsxRefresherNormalize );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() && !param.stopped() ? nullptr : hdr.take();
}
