/* Warning header: what went wrong (RFC 3261, 20.43).
 *
 *     Warning = "Warning" HCOLON warning-value *( COMMA warning-value )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_warning_value.h);
 * each is written on a line of its own. Two headers compare by these texts. A raw header without lines is an
 * empty list. */
#ifndef TELSX_TELSX_HEADER_WARNING_H
#define TELSX_TELSX_HEADER_WARNING_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_warning_value.h"

RT_BEGIN

TELSX_HEADER( HeaderWarning, HEADER_WARNING )
TELSX_FREE_FUNC( HeaderWarning )

/* A header without values. */
RT_API TELSX_HEADER_WARNING telsxHeaderWarningCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderWarningWarningsLength( TELSX_HEADER_WARNING hdr );
RT_API TELSX_WARNING_VALUE telsxHeaderWarningTryDecodeWarningAt( TELSX_HEADER_WARNING hdr, int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderWarningSetWarningAt( TELSX_HEADER_WARNING *hdr, int64_t index,
                                            TELSX_WARNING_VALUE warning );
RT_API void telsxHeaderWarningDelWarningAt( TELSX_HEADER_WARNING *hdr, int64_t index );
RT_API void telsxHeaderWarningPrependWarning( TELSX_HEADER_WARNING *hdr, TELSX_WARNING_VALUE warning );
RT_API void telsxHeaderWarningAppendWarning( TELSX_HEADER_WARNING *hdr, TELSX_WARNING_VALUE warning );
RT_API void telsxHeaderWarningInsertWarning( TELSX_HEADER_WARNING *hdr, int64_t index,
                                             TELSX_WARNING_VALUE warning );
RT_API void telsxHeaderWarningWarningsClear( TELSX_HEADER_WARNING *hdr );

RT_END

#endif
