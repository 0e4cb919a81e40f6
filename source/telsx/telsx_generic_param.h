/* Generic parameter: a name, with or without a value.
 *
 *     generic-param = token [ EQUAL gen-value ]
 *
 * (RFC 3261, 25.1) The name is kept in lower case, the value in its original case. Parameters sort by name; then those
 * without a value come first; then they sort by type and by the values' normal forms. */
#ifndef TELSX_TELSX_GENERIC_PARAM_H
#define TELSX_TELSX_GENERIC_PARAM_H

#include "telsx/telsx_generic_param_value.h"
#include "telsx/telsx_object.h"

RT_BEGIN

TELSX_OBJECT( GenericParam, GENERIC_PARAM )

/* A parameter without a value, and a parameter with a value of the type. Both abort unless telsxGenericParamNameOk, and
 * for a value unless telsxGenericParamValueOk. */
RT_API TELSX_GENERIC_PARAM telsxGenericParamCreate( RT_STRING name );
RT_API TELSX_GENERIC_PARAM telsxGenericParamCreateCstr( const char *name, int64_t length );
RT_API TELSX_GENERIC_PARAM telsxGenericParamCreateWcstr( const wchar_t *name, int64_t length );
RT_API TELSX_GENERIC_PARAM telsxGenericParamCreateWithValue( RT_STRING name, int64_t type, RT_STRING value );
RT_API TELSX_GENERIC_PARAM telsxGenericParamCreateWithValueCstr( const char *name, int64_t length,
                                                                 int64_t type, RT_STRING value );
RT_API TELSX_GENERIC_PARAM telsxGenericParamCreateWithValueWcstr( const wchar_t *name, int64_t length,
                                                                  int64_t type, RT_STRING value );

/* The name, in lower case, never null. Set aborts unless telsxGenericParamNameOk. */
RT_API RT_STRING telsxGenericParamName( TELSX_GENERIC_PARAM param );
RT_API void telsxGenericParamSetName( TELSX_GENERIC_PARAM *param, RT_STRING name );
RT_API void telsxGenericParamSetNameCstr( TELSX_GENERIC_PARAM *param, const char *name, int64_t length );
RT_API void telsxGenericParamSetNameWcstr( TELSX_GENERIC_PARAM *param, const wchar_t *name, int64_t length );

/* The value: its type, or -1 if there is no value; its normal form and the text itself, or null if there is no value.
 * Set aborts unless telsxGenericParamValueOk. NormalizeValue replaces the value with its normal form. */
RT_API RT_BOOL telsxGenericParamHasValue( TELSX_GENERIC_PARAM param );
RT_API int64_t telsxGenericParamValueType( TELSX_GENERIC_PARAM param );
RT_API RT_STRING telsxGenericParamValueNormalized( TELSX_GENERIC_PARAM param );
RT_API RT_STRING telsxGenericParamValueNonNormalized( TELSX_GENERIC_PARAM param );
RT_API void telsxGenericParamSetValue( TELSX_GENERIC_PARAM *param, int64_t type, RT_STRING value );
RT_API void telsxGenericParamDelValue( TELSX_GENERIC_PARAM *param );
RT_API void telsxGenericParamNormalizeValue( TELSX_GENERIC_PARAM *param );

/* For the library's own units. TryDecode takes one whole parameter and returns a new reference, or null for bad
 * text. */
RT_API RT_STRING telsx___GenericParamEncode( TELSX_GENERIC_PARAM param );
RT_API TELSX_GENERIC_PARAM telsx___GenericParamTryDecode( const RT_CHAR *chs, int64_t length );
TELSX_FREE_FUNC( GenericParam )
TELSX_COMPARE_FUNC( GenericParam )
TELSX_TO_STRING_FUNC( GenericParam )

RT_END

#endif
