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
TELSX_DEFINE_FIELD( HeaderPChargingVector, hdr, IcidGeneratedAt, icidGeneratedAt,
                    telsxHostOk( icidGeneratedAt ) )
TELSX_DEFINE_OPTION( HeaderPChargingVector, hdr, IcidGeneratedAt, icidGeneratedAt )
TELSX_DEFINE_FIELD( HeaderPChargingVector, hdr, OrigIoi, origIoi, telsxQuotableStringOk( origIoi ) )
TELSX_DEFINE_OPTION( HeaderPChargingVector, hdr, OrigIoi, origIoi )
TELSX_DEFINE_FIELD( HeaderPChargingVector, hdr, TermIoi, termIoi, telsxQuotableStringOk( termIoi ) )
TELSX_DEFINE_OPTION( HeaderPChargingVector, hdr, TermIoi, termIoi )
TELSX_DEFINE_FIELD( HeaderPChargingVector, hdr, TransitIoi, transitIoi, telsxTransitIoiOk( transitIoi ) )
TELSX_DEFINE_OPTION( HeaderPChargingVector, hdr, TransitIoi, transitIoi )
TELSX_DEFINE_FIELD( HeaderPChargingVector, hdr, RelatedIcid, relatedIcid,
                    telsxQuotableStringOk( relatedIcid ) )
TELSX_DEFINE_OPTION( HeaderPChargingVector, hdr, RelatedIcid, relatedIcid )
TELSX_DEFINE_FIELD( HeaderPChargingVector, hdr, RelatedIcidGeneratedAt, relatedIcidGeneratedAt,
                    telsxHostOk( relatedIcidGeneratedAt ) )
TELSX_DEFINE_OPTION( HeaderPChargingVector, hdr, RelatedIcidGeneratedAt, relatedIcidGeneratedAt )
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
    if ( !param.next() || !param.is<"icid-value">( skipGenValue )
         || !param.store( icidValue, param.value.as( tryDecodeGenValue ) ) )
        return nullptr;
    Ref<TELSX_HEADER_P_CHARGING_VECTOR> hdr = create( std::move( icidValue ) );

    while ( param.next() )
    {
        if ( param.is<"icid-generated-at">( telsx___SkipHost ) )
            param.store( hdr->icidGeneratedAt, param.value.as( telsx___HostTryDecode ) );
        if ( param.is<"orig-ioi">( skipGenValue ) )
            param.store( hdr->origIoi, param.value.as( tryDecodeGenValue ) );
        if ( param.is<"term-ioi">( skipGenValue ) )
            param.store( hdr->termIoi, param.value.as( tryDecodeGenValue ) );
        if ( param.is<"transit-ioi">( skipInQuotes<telsx___SkipTransitIoi> ) )
            param.store( hdr->transitIoi, copyInQuotes( param.value ) );
        if ( param.is<"related-icid">( skipGenValue ) )
            param.store( hdr->relatedIcid, param.value.as( tryDecodeGenValue ) );
        if ( param.is<"related-icid-generated-at">( telsx___SkipHost ) )
            param.store( hdr->relatedIcidGeneratedAt, param.value.as( telsx___HostTryDecode ) );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}
