/* Subscription state.
 *
 *     substate-value = "active" / "pending" / "terminated" / extension-substate
 *     extension-substate = token
 *
 * (RFC 6665, 8.4) */
#ifndef TELSX_TELSX_SUBSTATE_VALUE_H
#define TELSX_TELSX_SUBSTATE_VALUE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a substate value; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxSubstateValueOk( RT_STRING substateValue );

/* The substate value in lower case, a new reference. Aborts unless telsxSubstateValueOk. */
RT_API RT_STRING telsxSubstateValueNormalize( RT_STRING substateValue );

/* How many code points at the start of the text form a substate value (see telsx_skip.h). */
RT_API int64_t telsx___SkipSubstateValue( const RT_CHAR *chs, int64_t length );

RT_END

#endif
