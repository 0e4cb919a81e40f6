/* Diversion header: who diverted a call (RFC 5806, 4).
 *
 *     Diversion = "Diversion" HCOLON diversion-params *( COMMA diversion-params )
 *
 * A list of values of telsx_diversion.h. */
#ifndef TELSX_TELSX_HEADER_DIVERSION_H
#define TELSX_TELSX_HEADER_DIVERSION_H

#include "telsx/telsx_diversion.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderDiversion, HEADER_DIVERSION, Diversion, DIVERSION )

RT_END

#endif
