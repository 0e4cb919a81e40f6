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

/* Whether the text is an index; the empty text is none. Null aborts. */
RT_API RT_BOOL telsxHistoryInfoIndexOk( RT_STRING index );

/* How many code points at the start of the text are an index (see telsx_skip.h). A number with a leading
 * zero, and a dot that no digit follows, make it 0 for the whole. */
RT_API int64_t telsx___SkipHistoryInfoIndex( const RT_CHAR *chs, int64_t length );

RT_END

#endif
