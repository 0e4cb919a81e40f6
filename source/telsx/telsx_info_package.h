/* Info package: what INFO requests of a session are about.
 *
 *     Info-package-type = Info-package-name *( SEMI Info-package-param )
 *     Info-package-name = token
 *     Info-package-param = generic-param
 *
 * (RFC 6086, 9.2) Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_INFO_PACKAGE_H
#define TELSX_TELSX_INFO_PACKAGE_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( InfoPackage, INFO_PACKAGE )
TELSX_COMPARE_FUNC( InfoPackage )
TELSX_TO_STRING_FUNC( InfoPackage )

/* A package of this name and nothing else. Aborts unless telsxTokenOk. */
RT_API TELSX_INFO_PACKAGE telsxInfoPackageCreate( RT_STRING name );

/* The name, in its original case, never null. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxInfoPackageName( TELSX_INFO_PACKAGE infoPackage );
RT_API void telsxInfoPackageSetName( TELSX_INFO_PACKAGE *infoPackage, RT_STRING name );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxInfoPackageGenericParams( TELSX_INFO_PACKAGE infoPackage );
RT_API void telsxInfoPackageSetGenericParams( TELSX_INFO_PACKAGE *infoPackage,
                                              TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form such a value (see telsx_skip.h). */
RT_API int64_t telsx___SkipInfoPackage( const RT_CHAR *chs, int64_t length );

RT_END

#endif
