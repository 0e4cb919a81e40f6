/* Alert-Info header: how to ring (RFC 3261, 20.4).
 *
 *     Alert-Info = "Alert-Info" HCOLON alert-param *( COMMA alert-param )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_alert_info.h); each
 * is written on a line of its own. Two headers compare by these texts. A raw header without lines is bad
 * text; one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_ALERT_INFO_H
#define TELSX_TELSX_HEADER_ALERT_INFO_H

#include "telsx/telsx_alert_info.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderAlertInfo, HEADER_ALERT_INFO )
TELSX_FREE_FUNC( HeaderAlertInfo )

/* A header without values. */
RT_API TELSX_HEADER_ALERT_INFO telsxHeaderAlertInfoCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderAlertInfoAlertInfosLength( TELSX_HEADER_ALERT_INFO hdr );
RT_API TELSX_ALERT_INFO telsxHeaderAlertInfoTryDecodeAlertInfoAt( TELSX_HEADER_ALERT_INFO hdr,
                                                                  int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderAlertInfoSetAlertInfoAt( TELSX_HEADER_ALERT_INFO *hdr, int64_t index,
                                                TELSX_ALERT_INFO alertInfo );
RT_API void telsxHeaderAlertInfoDelAlertInfoAt( TELSX_HEADER_ALERT_INFO *hdr, int64_t index );
RT_API void telsxHeaderAlertInfoPrependAlertInfo( TELSX_HEADER_ALERT_INFO *hdr, TELSX_ALERT_INFO alertInfo );
RT_API void telsxHeaderAlertInfoAppendAlertInfo( TELSX_HEADER_ALERT_INFO *hdr, TELSX_ALERT_INFO alertInfo );
RT_API void telsxHeaderAlertInfoInsertAlertInfo( TELSX_HEADER_ALERT_INFO *hdr, int64_t index,
                                                 TELSX_ALERT_INFO alertInfo );
RT_API void telsxHeaderAlertInfoClearAlertInfos( TELSX_HEADER_ALERT_INFO *hdr );

RT_END

#endif
