/* Qvalue: a weight from 0 to 1, as a number of thousandths.
 *
 *     qvalue = ( "0" [ "." 0*3DIGIT ] ) / ( "1" [ "." 0*3("0") ] )
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_QVALUE_H
#define TELSX_TELSX_QVALUE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the number is from 0 to 1000. */
RT_API RT_BOOL telsxQvalueOk( int64_t qvalue );

/* For the library's own units. Encode writes three decimals, returns a new reference, and aborts unless telsxQvalueOk.
 * TryDecode takes one whole qvalue and returns thousandths, or -1 for bad text; for the empty text it returns 0. */
RT_API RT_STRING telsx___QvalueEncode( int64_t qvalue );
RT_API int64_t telsx___QvalueTryDecode( const RT_CHAR *chs, int64_t length );

/* How many code points at the start of the text form a qvalue (see telsx_skip.h); the dot counts even without a
 * digit. */
RT_API int64_t telsx___SkipQvalue( const RT_CHAR *chs, int64_t length );

RT_END

#endif
