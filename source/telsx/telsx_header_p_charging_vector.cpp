// P-Charging-Vector header (RFC 7315, 5.6).
#include "telsx/telsx_header_p_charging_vector.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_quoted.hpp"
#include "telsx/telsx_transit_ioi.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_P_CHARGING_VECTOR_
{
    RT_OBJECT object;
    Ref<RT_STRING> icidValue; // plain, never null
    Ref<RT_STRING> icidGeneratedAt;
    Ref<RT_STRING> origIoi;     // plain
    Ref<RT_STRING> termIoi;     // plain
    Ref<RT_STRING> transitIoi;  // without its quotes
    Ref<RT_STRING> relatedIcid; // plain
    Ref<RT_STRING> relatedIcidGeneratedAt;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.icidValue, self.icidGeneratedAt, self.origIoi, self.termIoi, self.transitIoi,
                         self.relatedIcid, self.relatedIcidGeneratedAt, self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPChargingVector, HEADER_P_CHARGING_VECTOR, hdr, "P-Charging-Vector" )
TELSX_DEFINE_FIELD( HeaderPChargingVector, hdr, IcidValue, icidValue, telsxQuotableStringOk( icidValue ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderPChargingVector, hdr, IcidGeneratedAt, icidGeneratedAt,
                             telsxHostOk( icidGeneratedAt ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderPChargingVector, hdr, OrigIoi, origIoi, telsxQuotableStringOk( origIoi ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderPChargingVector, hdr, TermIoi, termIoi, telsxQuotableStringOk( termIoi ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderPChargingVector, hdr, TransitIoi, transitIoi,
                             telsxTransitIoiOk( transitIoi ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderPChargingVector, hdr, RelatedIcid, relatedIcid,
                             telsxQuotableStringOk( relatedIcid ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderPChargingVector, hdr, RelatedIcidGeneratedAt, relatedIcidGeneratedAt,
                             telsxHostOk( relatedIcidGeneratedAt ) )
TELSX_DEFINE_FIELD( HeaderPChargingVector, hdr, GenericParams, genericParams, genericParams )

static Ref<TELSX_HEADER_P_CHARGING_VECTOR> create( Ref<RT_STRING> icidValue )
{
    auto hdr = adopt( rt::create<TELSX_HEADER_P_CHARGING_VECTOR_>( telsxHeaderPChargingVectorSort() ) );
    hdr->icidValue = std::move( icidValue );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_HEADER_P_CHARGING_VECTOR telsxHeaderPChargingVectorCreate( RT_STRING icidValue )
{
    TELSX_ASSERT_OK( telsxQuotableStringOk, icidValue );
    return create( share( icidValue ) ).take();
}

TELSX_MESSAGE_HEADER telsxHeaderPChargingVectorEncode( TELSX_HEADER_P_CHARGING_VECTOR hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = adopt( rtStringCreate() );
    ParamWriter params( line );
    params.write<"icid-value">( hdr->icidValue, encodeGenValue );
    params.write<"icid-generated-at">( hdr->icidGeneratedAt, telsx___HostEncode );
    params.write<"orig-ioi">( hdr->origIoi, encodeGenValue );
    params.write<"term-ioi">( hdr->termIoi, encodeGenValue );
    params.writeInQuotes<"transit-ioi">( hdr->transitIoi );
    params.write<"related-icid">( hdr->relatedIcid, encodeGenValue );
    params.write<"related-icid-generated-at">( hdr->relatedIcidGeneratedAt, telsx___HostEncode );
    params.writeGeneric( hdr->genericParams );
    return createHeader( literal<"P-Charging-Vector">(), withoutFirstSemi( line ) );
}

// The value must be the first parameter.
static TELSX_HEADER_P_CHARGING_VECTOR decode( HeaderLines &lines )
{
    ParamReader param = ParamReader::withoutFront( lines.lastText() );
    Ref<RT_STRING> icidValue;
    if ( !param.next() || !param.read<"icid-value">( icidValue, skipGenValue, tryDecodeGenValue ) )
        return nullptr;
    Ref<TELSX_HEADER_P_CHARGING_VECTOR> hdr = create( std::move( icidValue ) );

    while ( param.next() )
    {
        param.read<"icid-generated-at">( hdr->icidGeneratedAt, telsx___SkipHost, telsx___HostTryDecode );
        param.read<"orig-ioi">( hdr->origIoi, skipGenValue, tryDecodeGenValue );
        param.read<"term-ioi">( hdr->termIoi, skipGenValue, tryDecodeGenValue );
        param.readInQuotes<"transit-ioi", telsx___SkipTransitIoi>( hdr->transitIoi );
        param.read<"related-icid">( hdr->relatedIcid, skipGenValue, tryDecodeGenValue );
        param.read<"related-icid-generated-at">( hdr->relatedIcidGeneratedAt, telsx___SkipHost,
                                                 telsx___HostTryDecode );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}
