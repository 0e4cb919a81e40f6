/* Status code of a response (RFC 3261, 7.2 and 21): a number from 100 to 999. */
#ifndef TELSX_TELSX_STATUS_CODE_H
#define TELSX_TELSX_STATUS_CODE_H

#include "rt/rt.h"

RT_BEGIN

/* The status code of a message that is not a response. */
#define TELSX_STATUS_CODE_INVALID ( -1 )

/* Whether the number is from 100 to 999. */
RT_API RT_BOOL telsxStatusCodeOk( int64_t sc );

/* Whether the code is in the class: 1xx, 2xx, 3xx, 4xx, 5xx, 6xx. Codes from 700 on are in none of them. All abort
 * unless telsxStatusCodeOk. */
RT_API RT_BOOL telsxStatusCodeInformational( int64_t sc );
RT_API RT_BOOL telsxStatusCodeSuccess( int64_t sc );
RT_API RT_BOOL telsxStatusCodeRedirection( int64_t sc );
RT_API RT_BOOL telsxStatusCodeClientError( int64_t sc );
RT_API RT_BOOL telsxStatusCodeServerError( int64_t sc );
RT_API RT_BOOL telsxStatusCodeGlobalFailure( int64_t sc );

/* The usual phrase of the code, a new reference; for a code without one, text such as Unknown reason "799", quotes
 * included. Aborts unless telsxStatusCodeOk. */
RT_API RT_STRING telsxStatusCodeReasonPhrase( int64_t sc );

RT_END

#endif
