/* Accept-Language header: the languages that a party prefers (RFC 3261, 20.3).
 *
 *     Accept-Language = "Accept-Language" HCOLON [ language *( COMMA language ) ]
 *
 * A list of values of telsx_accept_language.h. */
#ifndef TELSX_TELSX_HEADER_ACCEPT_LANGUAGE_H
#define TELSX_TELSX_HEADER_ACCEPT_LANGUAGE_H

#include "telsx/telsx_accept_language.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderAcceptLanguage, HEADER_ACCEPT_LANGUAGE, AcceptLanguage, ACCEPT_LANGUAGE )

RT_END

#endif
