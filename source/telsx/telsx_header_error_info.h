/* Error-Info header: where more is said about an error (RFC 3261, 20.18).
 *
 *     Error-Info = "Error-Info" HCOLON error-uri *( COMMA error-uri )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_error_info.h); each
 * is written on a line of its own. Two headers compare by these texts. A raw header without lines is bad
 * text; one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_ERROR_INFO_H
#define TELSX_TELSX_HEADER_ERROR_INFO_H

#include "telsx/telsx_error_info.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderErrorInfo, HEADER_ERROR_INFO )
TELSX_FREE_FUNC( HeaderErrorInfo )

/* A header without values. */
RT_API TELSX_HEADER_ERROR_INFO telsxHeaderErrorInfoCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderErrorInfoErrorInfosLength( TELSX_HEADER_ERROR_INFO hdr );
RT_API TELSX_ERROR_INFO telsxHeaderErrorInfoTryDecodeErrorInfoAt( TELSX_HEADER_ERROR_INFO hdr,
                                                                  int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderErrorInfoSetErrorInfoAt( TELSX_HEADER_ERROR_INFO *hdr, int64_t index,
                                                TELSX_ERROR_INFO errorInfo );
RT_API void telsxHeaderErrorInfoDelErrorInfoAt( TELSX_HEADER_ERROR_INFO *hdr, int64_t index );
RT_API void telsxHeaderErrorInfoPrependErrorInfo( TELSX_HEADER_ERROR_INFO *hdr, TELSX_ERROR_INFO errorInfo );
RT_API void telsxHeaderErrorInfoAppendErrorInfo( TELSX_HEADER_ERROR_INFO *hdr, TELSX_ERROR_INFO errorInfo );
RT_API void telsxHeaderErrorInfoInsertErrorInfo( TELSX_HEADER_ERROR_INFO *hdr, int64_t index,
                                                 TELSX_ERROR_INFO errorInfo );
RT_API void telsxHeaderErrorInfoClearErrorInfos( TELSX_HEADER_ERROR_INFO *hdr );

RT_END

#endif
