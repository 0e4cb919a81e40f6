/* Warning value: what went wrong, and who says so.
 *
 *     warning-value = warn-code SP warn-agent SP warn-text
 *
 * (RFC 3261, 20.43 and 25.1) Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_WARNING_VALUE_H
#define TELSX_TELSX_WARNING_VALUE_H

#include "telsx/telsx_object.h"

RT_BEGIN

TELSX_VALUE_OBJECT( WarningValue, WARNING_VALUE )
TELSX_COMPARE_FUNC( WarningValue )

/* A warning with the usual text of the code, or with a text of the caller's. They abort unless telsxWarnCodeOk,
 * telsxWarnAgentOk and telsxWarnTextOk. */
RT_API TELSX_WARNING_VALUE telsxWarningValueCreate( int64_t warnCode, RT_STRING warnAgent );
RT_API TELSX_WARNING_VALUE telsxWarningValueCreateWithWarnText( int64_t warnCode, RT_STRING warnAgent,
                                                                RT_STRING warnText );

/* The code, 0 to 999; a code below 100 is written without leading zeros and can't be read again. Set also sets the
 * usual text of the code unless updateWarnText is 0; it aborts unless telsxWarnCodeOk. */
RT_API int64_t telsxWarningValueWarnCode( TELSX_WARNING_VALUE wv );
RT_API void telsxWarningValueSetWarnCode( TELSX_WARNING_VALUE *wv, int64_t warnCode, RT_BOOL updateWarnText );

/* Who warns: host, host and port, or pseudonym, never null. Set aborts unless telsxWarnAgentOk. */
RT_API RT_STRING telsxWarningValueWarnAgent( TELSX_WARNING_VALUE wv );
RT_API void telsxWarningValueSetWarnAgent( TELSX_WARNING_VALUE *wv, RT_STRING warnAgent );

/* The text, plain, never null, possibly empty. Set aborts unless telsxWarnTextOk. */
RT_API RT_STRING telsxWarningValueWarnText( TELSX_WARNING_VALUE wv );
RT_API void telsxWarningValueSetWarnText( TELSX_WARNING_VALUE *wv, RT_STRING warnText );

RT_END

#endif
