/* Allow header: the methods that a party understands (RFC 3261, 20.5).
 *
 *     Allow = "Allow" HCOLON [ Method *( COMMA Method ) ]
 *
 * A set of methods; their case counts. */
#ifndef TELSX_TELSX_HEADER_ALLOW_H
#define TELSX_TELSX_HEADER_ALLOW_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_SET( HeaderAllow, HEADER_ALLOW, Method )
TELSX_CHARS_OF_SET( HeaderAllow, HEADER_ALLOW, Method, Cstr, char )
TELSX_CHARS_OF_SET( HeaderAllow, HEADER_ALLOW, Method, Wcstr, wchar_t )

RT_END

#endif
