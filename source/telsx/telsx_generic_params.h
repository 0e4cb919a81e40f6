/* Generic parameters: the set of parameters of a value, at most one for each name.
 *
 *     generic-params = *( SEMI generic-param )
 *
 * (RFC 3261, 25.1) Names are looked up in any case; functions that take a name abort unless it is a token. The set
 * enumerates in the order in which the names were added. Two sets are equal when they hold equal parameters, in
 * whatever order. */
#ifndef TELSX_TELSX_GENERIC_PARAMS_H
#define TELSX_TELSX_GENERIC_PARAMS_H

#include "telsx/telsx_generic_param.h"

RT_BEGIN

TELSX_OBJECT( GenericParams, GENERIC_PARAMS )

/* An empty set. */
RT_API TELSX_GENERIC_PARAMS telsxGenericParamsCreate( void );

/* All parameters: their number; a new vector of them; Set replaces all of them with those of a vector and aborts unless
 * each element is a parameter. */
RT_API int64_t telsxGenericParamsLength( TELSX_GENERIC_PARAMS params );
RT_API RT_VECTOR telsxGenericParamsParamsVector( TELSX_GENERIC_PARAMS params );
RT_API void telsxGenericParamsSetParamsVector( TELSX_GENERIC_PARAMS *params, RT_VECTOR vector );

/* The parameter at the index, and its value as in telsx_generic_param.h. All abort unless the index is valid. */
RT_API TELSX_GENERIC_PARAM telsxGenericParamsParamAt( TELSX_GENERIC_PARAMS params, int64_t index );
RT_API int64_t telsxGenericParamsParamValueTypeAt( TELSX_GENERIC_PARAMS params, int64_t index );
RT_API RT_STRING telsxGenericParamsParamValueNormalizedAt( TELSX_GENERIC_PARAMS params, int64_t index );
RT_API RT_STRING telsxGenericParamsParamValueNonNormalizedAt( TELSX_GENERIC_PARAMS params, int64_t index );

/* The parameter of that name, or null. Changes to it reach the set only through SetParam, which replaces any parameter
 * of the same name. Deleting an absent name changes nothing. */
RT_API TELSX_GENERIC_PARAM telsxGenericParamsParam( TELSX_GENERIC_PARAMS params, RT_STRING name );
RT_API TELSX_GENERIC_PARAM telsxGenericParamsParamCstr( TELSX_GENERIC_PARAMS params, const char *name,
                                                        int64_t length );
RT_API TELSX_GENERIC_PARAM telsxGenericParamsParamWcstr( TELSX_GENERIC_PARAMS params, const wchar_t *name,
                                                         int64_t length );
RT_API RT_BOOL telsxGenericParamsHasParam( TELSX_GENERIC_PARAMS params, RT_STRING name );
RT_API RT_BOOL telsxGenericParamsHasParamCstr( TELSX_GENERIC_PARAMS params, const char *name,
                                               int64_t length );
RT_API RT_BOOL telsxGenericParamsHasParamWcstr( TELSX_GENERIC_PARAMS params, const wchar_t *name,
                                                int64_t length );
RT_API void telsxGenericParamsDelParam( TELSX_GENERIC_PARAMS *params, RT_STRING name );
RT_API void telsxGenericParamsDelParamCstr( TELSX_GENERIC_PARAMS *params, const char *name, int64_t length );
RT_API void telsxGenericParamsDelParamWcstr( TELSX_GENERIC_PARAMS *params, const wchar_t *name,
                                             int64_t length );
RT_API void telsxGenericParamsSetParam( TELSX_GENERIC_PARAMS *params, TELSX_GENERIC_PARAM param );

/* The value of the parameter of that name: its type, or -1 if there is no value or no parameter; its normal form and
 * the text itself, or null if there is none. SetParamValue makes a parameter and sets it; it aborts unless
 * telsxGenericParamValueOk. */
RT_API int64_t telsxGenericParamsParamValueType( TELSX_GENERIC_PARAMS params, RT_STRING name );
RT_API int64_t telsxGenericParamsParamValueTypeCstr( TELSX_GENERIC_PARAMS params, const char *name,
                                                     int64_t length );
RT_API int64_t telsxGenericParamsParamValueTypeWcstr( TELSX_GENERIC_PARAMS params, const wchar_t *name,
                                                      int64_t length );
RT_API RT_STRING telsxGenericParamsParamValueNormalized( TELSX_GENERIC_PARAMS params, RT_STRING name );
RT_API RT_STRING telsxGenericParamsParamValueNormalizedCstr( TELSX_GENERIC_PARAMS params, const char *name,
                                                             int64_t length );
RT_API RT_STRING telsxGenericParamsParamValueNormalizedWcstr( TELSX_GENERIC_PARAMS params,
                                                              const wchar_t *name, int64_t length );
RT_API RT_STRING telsxGenericParamsParamValueNonNormalized( TELSX_GENERIC_PARAMS params, RT_STRING name );
RT_API RT_STRING telsxGenericParamsParamValueNonNormalizedCstr( TELSX_GENERIC_PARAMS params, const char *name,
                                                                int64_t length );
RT_API RT_STRING telsxGenericParamsParamValueNonNormalizedWcstr( TELSX_GENERIC_PARAMS params,
                                                                 const wchar_t *name, int64_t length );
RT_API void telsxGenericParamsSetParamValue( TELSX_GENERIC_PARAMS *params, RT_STRING name, int64_t type,
                                             RT_STRING value );
RT_API void telsxGenericParamsSetParamValueCstr( TELSX_GENERIC_PARAMS *params, const char *name,
                                                 int64_t length, int64_t type, RT_STRING value );
RT_API void telsxGenericParamsSetParamValueWcstr( TELSX_GENERIC_PARAMS *params, const wchar_t *name,
                                                  int64_t length, int64_t type, RT_STRING value );

/* For the library's own units. Encode writes a semicolon before each parameter, and nothing for an empty set. TryDecode
 * takes any number of parameters, of which the last of each name is kept, and an optional semicolon at the end. It
 * returns a new reference, or null for bad text. */
RT_API RT_STRING telsx___GenericParamsEncode( TELSX_GENERIC_PARAMS params );
RT_API TELSX_GENERIC_PARAMS telsx___GenericParamsTryDecode( const RT_CHAR *chs, int64_t length );
TELSX_FREE_FUNC( GenericParams )
TELSX_COMPARE_FUNC( GenericParams )
TELSX_TO_STRING_FUNC( GenericParams )

RT_END

#endif
