/* Call-Info header: more about a party (RFC 3261, 20.9).
 *
 *     Call-Info = "Call-Info" HCOLON info *( COMMA info )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_call_info.h); each is
 * written on a line of its own. Two headers compare by these texts. A raw header without lines is bad text;
 * one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_CALL_INFO_H
#define TELSX_TELSX_HEADER_CALL_INFO_H

#include "telsx/telsx_call_info.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderCallInfo, HEADER_CALL_INFO )
TELSX_FREE_FUNC( HeaderCallInfo )

/* A header without values. */
RT_API TELSX_HEADER_CALL_INFO telsxHeaderCallInfoCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderCallInfoCallInfosLength( TELSX_HEADER_CALL_INFO hdr );
RT_API TELSX_CALL_INFO telsxHeaderCallInfoTryDecodeCallInfoAt( TELSX_HEADER_CALL_INFO hdr, int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderCallInfoSetCallInfoAt( TELSX_HEADER_CALL_INFO *hdr, int64_t index,
                                              TELSX_CALL_INFO callInfo );
RT_API void telsxHeaderCallInfoDelCallInfoAt( TELSX_HEADER_CALL_INFO *hdr, int64_t index );
RT_API void telsxHeaderCallInfoPrependCallInfo( TELSX_HEADER_CALL_INFO *hdr, TELSX_CALL_INFO callInfo );
RT_API void telsxHeaderCallInfoAppendCallInfo( TELSX_HEADER_CALL_INFO *hdr, TELSX_CALL_INFO callInfo );
RT_API void telsxHeaderCallInfoInsertCallInfo( TELSX_HEADER_CALL_INFO *hdr, int64_t index,
                                               TELSX_CALL_INFO callInfo );
RT_API void telsxHeaderCallInfoClearCallInfos( TELSX_HEADER_CALL_INFO *hdr );

RT_END

#endif
