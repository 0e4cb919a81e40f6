/* Content-Language header: the languages of a body (RFC 3261, 20.13).
 *
 *     Content-Language = "Content-Language" HCOLON language-tag *( COMMA language-tag )
 *
 * A set of language tags in lower case, looked up in any case: their order has no meaning. */
#ifndef TELSX_TELSX_HEADER_CONTENT_LANGUAGE_H
#define TELSX_TELSX_HEADER_CONTENT_LANGUAGE_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_SET( HeaderContentLanguage, HEADER_CONTENT_LANGUAGE, LanguageTag )

RT_END

#endif
