// P-Charging-Function-Addresses header (RFC 7315, 5.5).
#include "telsx/telsx_header_p_charging_function_addresses.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_quoted.hpp"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES_
{
    RT_OBJECT object;
    Ref<RT_STRING> ccf; // plain, like all addresses
    Ref<RT_STRING> ecf;
    Ref<RT_STRING> ccf2;
    Ref<RT_STRING> ecf2;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.ccf, self.ecf, self.ccf2, self.ecf2, self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPChargingFunctionAddresses, HEADER_P_CHARGING_FUNCTION_ADDRESSES, hdr,
                            "P-Charging-Function-Addresses" )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderPChargingFunctionAddresses, hdr, Ccf, ccf, telsxQuotableStringOk( ccf ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderPChargingFunctionAddresses, hdr, Ecf, ecf, telsxQuotableStringOk( ecf ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderPChargingFunctionAddresses, hdr, Ccf2, ccf2,
                             telsxQuotableStringOk( ccf2 ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderPChargingFunctionAddresses, hdr, Ecf2, ecf2,
                             telsxQuotableStringOk( ecf2 ) )
TELSX_DEFINE_FIELD( HeaderPChargingFunctionAddresses, hdr, GenericParams, genericParams, genericParams )

TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES telsxHeaderPChargingFunctionAddressesCreate( void )
{
    TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES hdr = rt::create<TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES_>(
        telsxHeaderPChargingFunctionAddressesSort() );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER
telsxHeaderPChargingFunctionAddressesEncode( TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = adopt( rtStringCreate() );
    ParamWriter params( line );
    params.write<"ccf">( hdr->ccf, encodeGenValue );
    params.write<"ecf">( hdr->ecf, encodeGenValue );
    params.write<"ccf-2">( hdr->ccf2, encodeGenValue );
    params.write<"ecf-2">( hdr->ecf2, encodeGenValue );
    params.writeGeneric( hdr->genericParams );
    RT_STRING name = literal<"P-Charging-Function-Addresses">();
    return rtStringLength( line.get() ) ? createHeader( name, withoutFirstSemi( line ) )
                                        : createHeader( name );
}

static TELSX_HEADER_P_CHARGING_FUNCTION_ADDRESSES decode( HeaderLines &lines )
{
    Text line = lines.lastText();
    if ( !line )
        return nullptr;
    auto hdr = adopt( telsxHeaderPChargingFunctionAddressesCreate() );
    ParamReader param = ParamReader::withoutFront( line );
    while ( param.next() )
    {
        param.read<"ccf">( hdr->ccf ? hdr->ccf2 : hdr->ccf, skipGenValue, tryDecodeGenValue );
        param.read<"ecf">( hdr->ecf ? hdr->ecf2 : hdr->ecf, skipGenValue, tryDecodeGenValue );
        param.read<"ccf-2">( hdr->ccf2, skipGenValue, tryDecodeGenValue );
        param.read<"ecf-2">( hdr->ecf2, skipGenValue, tryDecodeGenValue );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}
