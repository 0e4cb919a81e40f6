/* P-Early-Media header: what is allowed to flow before a call is answered (RFC 5009, 8).
 *
 *     P-Early-Media = "P-Early-Media" HCOLON [ em-param *( COMMA em-param ) ]
 *
 * A list of parameters in lower case, in the order of the media lines. */
#ifndef TELSX_TELSX_HEADER_P_EARLY_MEDIA_H
#define TELSX_TELSX_HEADER_P_EARLY_MEDIA_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_LIST( HeaderPEarlyMedia, HEADER_P_EARLY_MEDIA, EmParam, emParam )

RT_END

#endif
