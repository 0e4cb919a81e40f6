/* Reason header: why a request was sent (RFC 3326, 2).
 *
 *     Reason = "Reason" HCOLON reason-value *( COMMA reason-value )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_reason.h); each is
 * written on a line of its own. Two headers compare by these texts. A raw header without lines is bad text;
 * one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_REASON_H
#define TELSX_TELSX_HEADER_REASON_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_reason.h"

RT_BEGIN

TELSX_HEADER( HeaderReason, HEADER_REASON )
TELSX_FREE_FUNC( HeaderReason )

/* A header without values. */
RT_API TELSX_HEADER_REASON telsxHeaderReasonCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderReasonReasonsLength( TELSX_HEADER_REASON hdr );
RT_API TELSX_REASON telsxHeaderReasonTryDecodeReasonAt( TELSX_HEADER_REASON hdr, int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderReasonSetReasonAt( TELSX_HEADER_REASON *hdr, int64_t index, TELSX_REASON reason );
RT_API void telsxHeaderReasonDelReasonAt( TELSX_HEADER_REASON *hdr, int64_t index );
RT_API void telsxHeaderReasonPrependReason( TELSX_HEADER_REASON *hdr, TELSX_REASON reason );
RT_API void telsxHeaderReasonAppendReason( TELSX_HEADER_REASON *hdr, TELSX_REASON reason );
RT_API void telsxHeaderReasonInsertReason( TELSX_HEADER_REASON *hdr, int64_t index, TELSX_REASON reason );
RT_API void telsxHeaderReasonClearReasons( TELSX_HEADER_REASON *hdr );

RT_END

#endif
