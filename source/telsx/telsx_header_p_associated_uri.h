/* P-Associated-Uri header: the other addresses of a registered party (RFC 7315, 5.1).
 *
 *     P-Associated-URI = "P-Associated-URI" HCOLON [ p-aso-uri-spec *( COMMA p-aso-uri-spec ) ]  ; RFC 7315
 *
 * A list of values of telsx_associated_uri.h. */
#ifndef TELSX_TELSX_HEADER_P_ASSOCIATED_URI_H
#define TELSX_TELSX_HEADER_P_ASSOCIATED_URI_H

#include "telsx/telsx_associated_uri.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderPAssociatedUri, HEADER_P_ASSOCIATED_URI, AssociatedUri, ASSOCIATED_URI )

RT_END

#endif
