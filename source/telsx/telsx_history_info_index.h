/* History-Info index: dotted numbers, kept as text.
 *
 *     hi-index = "index" EQUAL index-val
 *     index-val = number *( "." number )
 *     number = "0" / ( %x31-39 *DIGIT )
 *
 * (RFC 7044, 5) */
#ifndef TELSX_TELSX_HISTORY_INFO_INDEX_H
#define TELSX_TELSX_HISTORY_INFO_INDEX_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is an index; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxHistoryInfoIndexOk( RT_STRING index );

/* How many code points at the start of the text form an index (see telsx_skip.h). A number with a leading zero, or a
 * dot without a digit after it, makes the whole result 0. */
RT_API int64_t telsx___SkipHistoryInfoIndex( const RT_CHAR *chs, int64_t length );

RT_END

#endif
