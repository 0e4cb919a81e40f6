/* Require header: the extensions that the other party must understand (RFC 3261, 20.32).
 *
 *     Require = "Require" HCOLON option-tag *( COMMA option-tag )
 *
 * A set of option tags in lower case, looked up in any case. */
#ifndef TELSX_TELSX_HEADER_REQUIRE_H
#define TELSX_TELSX_HEADER_REQUIRE_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_SET( HeaderRequire, HEADER_REQUIRE, OptionTag )
TELSX_CHARS_OF_SET( HeaderRequire, HEADER_REQUIRE, OptionTag, Cstr, char )
TELSX_CHARS_OF_SET( HeaderRequire, HEADER_REQUIRE, OptionTag, Wcstr, wchar_t )

RT_END

#endif
