/* Warning header: what went wrong (RFC 3261, 20.43).
 *
 *     Warning = "Warning" HCOLON warning-value *( COMMA warning-value )
 *
 * A list of values of telsx_warning_value.h. A raw header without lines is an empty list. */
#ifndef TELSX_TELSX_HEADER_WARNING_H
#define TELSX_TELSX_HEADER_WARNING_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_warning_value.h"

RT_BEGIN

TELSX_HEADER( HeaderWarning, HEADER_WARNING )
TELSX_FREE_FUNC( HeaderWarning )
TELSX_LIST_OF_VALUES( HeaderWarning, HEADER_WARNING, Warning, WARNING_VALUE )

/* A header without values. */
RT_API TELSX_HEADER_WARNING telsxHeaderWarningCreate( void );

/* Empties the list. */
RT_API void telsxHeaderWarningWarningsClear( TELSX_HEADER_WARNING *hdr );

RT_END

#endif
