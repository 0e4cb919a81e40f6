/* Error-Info header: where more is said about an error (RFC 3261, 20.18).
 *
 *     Error-Info = "Error-Info" HCOLON error-uri *( COMMA error-uri )
 *
 * A list of values of telsx_error_info.h. */
#ifndef TELSX_TELSX_HEADER_ERROR_INFO_H
#define TELSX_TELSX_HEADER_ERROR_INFO_H

#include "telsx/telsx_error_info.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderErrorInfo, HEADER_ERROR_INFO, ErrorInfo, ERROR_INFO )

RT_END

#endif
