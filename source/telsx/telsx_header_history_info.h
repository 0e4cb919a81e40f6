/* History-Info header: the targets that a request had (RFC 7044, 5).
 *
 *     History-Info = "History-Info" HCOLON hi-entry *( COMMA hi-entry )
 *
 * A list of values of telsx_history_info.h. */
#ifndef TELSX_TELSX_HEADER_HISTORY_INFO_H
#define TELSX_TELSX_HEADER_HISTORY_INFO_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_history_info.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderHistoryInfo, HEADER_HISTORY_INFO, HistoryInfo, HISTORY_INFO )

RT_END

#endif
