/* Recv-Info header: the Info packages that a party wants to receive (RFC 6086, 7.3).
 *
 *     Recv-Info = "Recv-Info" HCOLON [ Info-package-list ]
 *     Info-package-list = Info-package-type *( COMMA Info-package-type )
 *
 * A list of values of telsx_info_package.h. */
#ifndef TELSX_TELSX_HEADER_RECV_INFO_H
#define TELSX_TELSX_HEADER_RECV_INFO_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_info_package.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderRecvInfo, HEADER_RECV_INFO, InfoPackage, INFO_PACKAGE )

RT_END

#endif
