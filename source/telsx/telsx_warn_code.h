/* Warn code: the three-digit number of a Warning value.
 *
 *     warn-code = 3DIGIT
 *
 * (RFC 3261, 20.43 and 25.1) */
#ifndef TELSX_TELSX_WARN_CODE_H
#define TELSX_TELSX_WARN_CODE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the number is from 0 to 999. */
RT_API RT_BOOL telsxWarnCodeOk( int64_t warnCode );

/* The usual text of the code, a new reference; for a code without one, text such as Warning "007", quotes included.
 * Aborts unless telsxWarnCodeOk. */
RT_API RT_STRING telsxWarnCodeToString( int64_t warnCode );

/* For the library's own units. Encode returns the number without leading zeros, so that a code below 100 is too short
 * to be read again; it aborts unless telsxWarnCodeOk. Decode takes what telsx___SkipWarnCode (telsx_skip.h) found, and
 * aborts for anything but digits. */
RT_API RT_STRING telsx___WarnCodeEncode( int64_t warnCode );
RT_API int64_t telsx___WarnCodeDecode( const RT_CHAR *chs, int64_t length );

RT_END

#endif
