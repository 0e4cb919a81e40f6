// Retry-After header (RFC 3261, 20.33).
#include "telsx/telsx_header_retry_after.h"

#include "telsx/telsx_delta_seconds.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_RETRY_AFTER_
{
    RT_OBJECT object;
    int64_t deltaSeconds;
    int64_t duration;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.deltaSeconds, self.duration, self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRetryAfter, HEADER_RETRY_AFTER, hdr, "Retry-After" )
TELSX_DEFINE_FIELD( HeaderRetryAfter, hdr, DeltaSeconds, deltaSeconds, telsxDeltaSecondsOk( deltaSeconds ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderRetryAfter, hdr, Duration, duration, telsxDeltaSecondsOk( duration ) )

TELSX_DEFINE_GETTER( HeaderRetryAfter, hdr, GenericParams, genericParams )

void telsxHeaderRetryAfterSetGenericParams( TELSX_HEADER_RETRY_AFTER *hdr, TELSX_GENERIC_PARAMS params )
{
    TELSX_ASSERT_HANDLE( hdr );
    TELSX_ASSERT( params );
    rt::put( TELSX_OWN( hdr )->genericParams, params );
}

TELSX_HEADER_RETRY_AFTER telsxHeaderRetryAfterCreate( int64_t deltaSeconds )
{
    TELSX_ASSERT( telsxDeltaSecondsOk( deltaSeconds ) );
    TELSX_HEADER_RETRY_AFTER hdr = rt::create<TELSX_HEADER_RETRY_AFTER_>( telsxHeaderRetryAfterSort() );
    hdr->deltaSeconds = deltaSeconds;
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderRetryAfterEncode( TELSX_HEADER_RETRY_AFTER hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = adopt( telsx___DeltaSecondsEncode( hdr->deltaSeconds ) );
    ParamWriter params( line );
    params.write<"duration">( hdr->duration );
    params.writeGeneric( hdr->genericParams );
    return createHeader( literal<"Retry-After">(), line );
}

static TELSX_HEADER_RETRY_AFTER decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    int64_t deltaSeconds = rest.take( telsx___SkipDeltaSeconds ).as( telsx___DeltaSecondsTryDecode );
    if ( deltaSeconds == -1 )
        return nullptr;
    auto hdr = adopt( telsxHeaderRetryAfterCreate( deltaSeconds ) );
    rest.take( telsx___SkipLws );
    rest.take( telsx___SkipComment );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.read<"duration">( hdr->duration, telsx___SkipDeltaSeconds, telsx___DeltaSecondsTryDecode );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() && !param.stopped() ? nullptr : hdr.take();
}
