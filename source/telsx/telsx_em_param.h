/* Early-media parameter: what is allowed to flow on a media line before a call is answered.
 *
 *     em-param = "sendrecv" / "sendonly" / "recvonly" / "inactive" / "gated" / "supported" / token
 *
 * (RFC 5009, 8) */
#ifndef TELSX_TELSX_EM_PARAM_H
#define TELSX_TELSX_EM_PARAM_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is such a parameter; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxEmParamOk( RT_STRING emParam );

/* The parameter in lower case, a new reference. Aborts unless telsxEmParamOk. */
RT_API RT_STRING telsxEmParamNormalize( RT_STRING emParam );

/* How many code points at the start of the text form such a parameter (see telsx_skip.h). */
RT_API int64_t telsx___SkipEmParam( const RT_CHAR *chs, int64_t length );

RT_END

#endif
