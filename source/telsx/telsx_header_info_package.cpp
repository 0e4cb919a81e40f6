// Info-Package header (RFC 6086, 7.2).
#include "telsx/telsx_header_info_package.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_token.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_INFO_PACKAGE_
{
    RT_OBJECT object;
    Ref<RT_STRING> name;                     // never null
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.name, self.genericParams ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderInfoPackage, HEADER_INFO_PACKAGE, hdr, "Info-Package" )
TELSX_DEFINE_FIELD( HeaderInfoPackage, hdr, Name, name, telsxTokenOk( name ) )
TELSX_DEFINE_FIELD( HeaderInfoPackage, hdr, GenericParams, genericParams, genericParams )

TELSX_HEADER_INFO_PACKAGE telsxHeaderInfoPackageCreate( RT_STRING name )
{
    TELSX_ASSERT_OK( telsxTokenOk, name );
    TELSX_HEADER_INFO_PACKAGE hdr = rt::create<TELSX_HEADER_INFO_PACKAGE_>( telsxHeaderInfoPackageSort() );
    hdr->name = share( name );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderInfoPackageEncode( TELSX_HEADER_INFO_PACKAGE hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = hdr->name;
    appendGenericParams( line, hdr->genericParams.get() );
    return createHeader( literal<"Info-Package">(), line );
}

static TELSX_HEADER_INFO_PACKAGE decode( HeaderLines &lines )
{
    Text rest = lines.lastText(), name = rest.take( telsx___SkipToken );
    if ( !name )
        return nullptr;
    auto hdr = adopt( telsxHeaderInfoPackageCreate( name.copy().get() ) );
    return readGenericParams( rest, hdr->genericParams ) ? hdr.take() : nullptr;
}
