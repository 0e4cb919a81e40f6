/* Request-Disposition header: how a caller wants servers to treat a request (RFC 3841, 9.1 and 10).
 *
 *     Request-Disposition = ( "Request-Disposition" / "d" ) HCOLON directive *( COMMA directive )
 *
 * A set of directives in lower case, looked up in any case. Directives that
 * contradict each other are all kept. */
#ifndef TELSX_TELSX_HEADER_REQUEST_DISPOSITION_H
#define TELSX_TELSX_HEADER_REQUEST_DISPOSITION_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_SET( HeaderRequestDisposition, HEADER_REQUEST_DISPOSITION, Directive )

RT_END

#endif
