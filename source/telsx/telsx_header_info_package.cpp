// Info-Package header (RFC 6086, 7.2).
#include "telsx/telsx_header_info_package.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_info_package.hpp"

using namespace telsx;

struct TELSX_HEADER_INFO_PACKAGE_ : InfoPackage
{
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
    return createHeader( literal<"Info-Package">(), encodeInfoPackage( *hdr ) );
}

static TELSX_HEADER_INFO_PACKAGE decode( HeaderLines &lines )
{
    auto hdr = adopt( rt::create<TELSX_HEADER_INFO_PACKAGE_>( telsxHeaderInfoPackageSort() ) );
    return decodeInfoPackage( *hdr.get(), lines.lastText() ) ? hdr.take() : nullptr;
}
