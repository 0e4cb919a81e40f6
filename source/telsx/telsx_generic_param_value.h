/* Value of a generic parameter.
 *
 *     gen-value = token / host / quoted-string
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_GENERIC_PARAM_VALUE_H
#define TELSX_TELSX_GENERIC_PARAM_VALUE_H

#include "rt/rt.h"

RT_BEGIN

/* The types of values: a token, unchanged; a host (telsx_host.h); a quotable string, plain in objects and in quotes on
 * the wire (telsx_quotable_string.h). */
#define TELSX_GENERIC_PARAM_VALUE_TYPE_TOKEN 0
#define TELSX_GENERIC_PARAM_VALUE_TYPE_HOST 1
#define TELSX_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING 2
#define TELSX_GENERIC_PARAM_VALUE_TYPE_OK( type ) ( ( type ) >= 0 && ( type ) <= 2 )

/* Whether the text is a value of the type. Aborts for an unknown type and for a null value. */
RT_API RT_BOOL telsxGenericParamValueOk( int64_t type, RT_STRING value );

/* The form in which values are compared, a new reference: a token in lower case, any other value unchanged. Aborts for
 * an unknown type, for a null value, and for a value of the token type that is not a token. */
RT_API RT_STRING telsxGenericParamValueNormalize( int64_t type, RT_STRING value );

RT_END

#endif
