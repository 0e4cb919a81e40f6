/* Info-Package header: what an INFO request is about (RFC 6086, 7.2).
 *
 *     Info-Package = "Info-Package" HCOLON Info-package-type
 *
 * The fields are those of telsx_info_package.h. Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_INFO_PACKAGE_H
#define TELSX_TELSX_HEADER_INFO_PACKAGE_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderInfoPackage, HEADER_INFO_PACKAGE )
TELSX_FREE_FUNC( HeaderInfoPackage )

/* A header with a package of this name and nothing else. Aborts unless telsxTokenOk. */
RT_API TELSX_HEADER_INFO_PACKAGE telsxHeaderInfoPackageCreate( RT_STRING name );

/* The name, in its original case, never null. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxHeaderInfoPackageName( TELSX_HEADER_INFO_PACKAGE hdr );
RT_API void telsxHeaderInfoPackageSetName( TELSX_HEADER_INFO_PACKAGE *hdr, RT_STRING name );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderInfoPackageGenericParams( TELSX_HEADER_INFO_PACKAGE hdr );
RT_API void telsxHeaderInfoPackageSetGenericParams( TELSX_HEADER_INFO_PACKAGE *hdr,
                                                    TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
