/* Accept-Encoding header: which content codings a party understands (RFC 3261, 20.2).
 *
 *     Accept-Encoding = "Accept-Encoding" HCOLON [ encoding *( COMMA encoding ) ]
 *
 * A list of values of telsx_accept_encoding.h. */
#ifndef TELSX_TELSX_HEADER_ACCEPT_ENCODING_H
#define TELSX_TELSX_HEADER_ACCEPT_ENCODING_H

#include "telsx/telsx_accept_encoding.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderAcceptEncoding, HEADER_ACCEPT_ENCODING, AcceptEncoding, ACCEPT_ENCODING )

RT_END

#endif
