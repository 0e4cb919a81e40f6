/* Content-Encoding header: how a body is compressed (RFC 3261, 20.12).
 *
 *     Content-Encoding = ( "Content-Encoding" / "e" ) HCOLON content-coding *( COMMA content-coding )
 *
 * A list of codings in lower case, in the order in which they were applied. */
#ifndef TELSX_TELSX_HEADER_CONTENT_ENCODING_H
#define TELSX_TELSX_HEADER_CONTENT_ENCODING_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_LIST( HeaderContentEncoding, HEADER_CONTENT_ENCODING, ContentCoding )

RT_END

#endif
