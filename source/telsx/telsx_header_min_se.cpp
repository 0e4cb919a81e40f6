// Min-Se header (RFC 4028, 5).
#include "telsx/telsx_header_min_se.h"

#include "telsx/telsx_delta_seconds.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_MIN_SE_
{
    RT_OBJECT object;
    int64_t deltaSeconds;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.deltaSeconds, self.genericParams ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderMinSe, HEADER_MIN_SE, hdr, "Min-Se" )
TELSX_DEFINE_FIELD( HeaderMinSe, hdr, DeltaSeconds, deltaSeconds, telsxDeltaSecondsOk( deltaSeconds ) )
TELSX_DEFINE_FIELD( HeaderMinSe, hdr, GenericParams, genericParams, genericParams )

TELSX_HEADER_MIN_SE telsxHeaderMinSeCreate( int64_t deltaSeconds )
{
    TELSX_ASSERT( telsxDeltaSecondsOk( deltaSeconds ) );
    TELSX_HEADER_MIN_SE hdr = rt::create<TELSX_HEADER_MIN_SE_>( telsxHeaderMinSeSort() );
    hdr->deltaSeconds = deltaSeconds;
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderMinSeEncode( TELSX_HEADER_MIN_SE hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = adopt( telsx___DeltaSecondsEncode( hdr->deltaSeconds ) );
    appendGenericParams( line, hdr->genericParams.get() );
    return createHeader( literal<"Min-Se">(), line );
}

static TELSX_HEADER_MIN_SE decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    int64_t deltaSeconds = rest.take( telsx___SkipDeltaSeconds ).as( telsx___DeltaSecondsTryDecode );
    if ( deltaSeconds == -1 )
        return nullptr;
    auto hdr = adopt( telsxHeaderMinSeCreate( deltaSeconds ) );

    ParamReader param( rest );
    while ( param.next() )
        param.storeGeneric( hdr->genericParams );
    return param.failed() && !param.stopped() ? nullptr : hdr.take();
}
