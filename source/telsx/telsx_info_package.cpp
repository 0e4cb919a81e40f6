// Info package (RFC 6086, 9.2).
#include "telsx/telsx_info_package.h"

#include "telsx/telsx_info_package.hpp"

using namespace telsx;

struct TELSX_INFO_PACKAGE_ : InfoPackage
{
};

TELSX_DEFINE_OBJECT( InfoPackage, INFO_PACKAGE, telsx___InfoPackageFreeFunc, telsx___InfoPackageCompareFunc,
                     telsx___InfoPackageToStringFunc )
TELSX_DEFINE_FREE_FUNC( InfoPackage, infoPackage )
TELSX_DEFINE_COMPARE_FUNC( InfoPackage, infoPackage )
TELSX_DEFINE_TO_STRING_FUNC( InfoPackage, infoPackage )
TELSX_DEFINE_FIELD( InfoPackage, infoPackage, Name, name, telsxTokenOk( name ) )
TELSX_DEFINE_FIELD( InfoPackage, infoPackage, GenericParams, genericParams, genericParams )

TELSX_INFO_PACKAGE telsxInfoPackageCreate( RT_STRING name )
{
    TELSX_ASSERT_OK( telsxTokenOk, name );
    TELSX_INFO_PACKAGE infoPackage = rt::create<TELSX_INFO_PACKAGE_>( telsxInfoPackageSort() );
    infoPackage->name = share( name );
    infoPackage->genericParams = noGenericParams();
    return infoPackage;
}

RT_STRING telsx___InfoPackageEncode( TELSX_INFO_PACKAGE infoPackage )
{
    TELSX_ASSERT( infoPackage );
    return encodeInfoPackage( *infoPackage ).take();
}

TELSX_INFO_PACKAGE telsx___InfoPackageTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    auto infoPackage = adopt( rt::create<TELSX_INFO_PACKAGE_>( telsxInfoPackageSort() ) );
    return decodeInfoPackage( *infoPackage.get(), { chs, length } ) ? infoPackage.take() : nullptr;
}

int64_t telsx___SkipInfoPackage( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWithParams( { chs, length }, telsx___SkipToken( chs, length ) );
}
