/* History-Info header: the targets that a request had (RFC 7044, 5).
 *
 *     History-Info = "History-Info" HCOLON hi-entry *( COMMA hi-entry )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_history_info.h); each
 * is written on a line of its own. Two headers compare by these texts. A raw header without lines is bad
 * text; one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_HISTORY_INFO_H
#define TELSX_TELSX_HEADER_HISTORY_INFO_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_history_info.h"

RT_BEGIN

TELSX_HEADER( HeaderHistoryInfo, HEADER_HISTORY_INFO )
TELSX_FREE_FUNC( HeaderHistoryInfo )

/* A header without values. */
RT_API TELSX_HEADER_HISTORY_INFO telsxHeaderHistoryInfoCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderHistoryInfoHistoryInfosLength( TELSX_HEADER_HISTORY_INFO hdr );
RT_API TELSX_HISTORY_INFO telsxHeaderHistoryInfoTryDecodeHistoryInfoAt( TELSX_HEADER_HISTORY_INFO hdr,
                                                                        int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderHistoryInfoSetHistoryInfoAt( TELSX_HEADER_HISTORY_INFO *hdr, int64_t index,
                                                    TELSX_HISTORY_INFO historyInfo );
RT_API void telsxHeaderHistoryInfoDelHistoryInfoAt( TELSX_HEADER_HISTORY_INFO *hdr, int64_t index );
RT_API void telsxHeaderHistoryInfoPrependHistoryInfo( TELSX_HEADER_HISTORY_INFO *hdr,
                                                      TELSX_HISTORY_INFO historyInfo );
RT_API void telsxHeaderHistoryInfoAppendHistoryInfo( TELSX_HEADER_HISTORY_INFO *hdr,
                                                     TELSX_HISTORY_INFO historyInfo );
RT_API void telsxHeaderHistoryInfoInsertHistoryInfo( TELSX_HEADER_HISTORY_INFO *hdr, int64_t index,
                                                     TELSX_HISTORY_INFO historyInfo );
RT_API void telsxHeaderHistoryInfoClearHistoryInfos( TELSX_HEADER_HISTORY_INFO *hdr );

RT_END

#endif
