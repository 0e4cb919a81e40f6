/* Name of a generic parameter.
 *
 *     name = token
 *
 * (RFC 3261, 25.1, generic-param) */
#ifndef TELSX_TELSX_GENERIC_PARAM_NAME_H
#define TELSX_TELSX_GENERIC_PARAM_NAME_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a token; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxGenericParamNameOk( RT_STRING name );

/* The name in lower case, a new reference. Aborts unless telsxTokenOk. */
RT_API RT_STRING telsxGenericParamNameNormalize( RT_STRING name );

RT_END

#endif
