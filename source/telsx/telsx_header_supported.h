/* Supported header: the extensions that a party understands (RFC 3261, 20.37).
 *
 *     Supported = ( "Supported" / "k" ) HCOLON [ option-tag *( COMMA option-tag ) ]
 *
 * A set of option tags in lower case, looked up in any case. */
#ifndef TELSX_TELSX_HEADER_SUPPORTED_H
#define TELSX_TELSX_HEADER_SUPPORTED_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_SET( HeaderSupported, HEADER_SUPPORTED, OptionTag )
TELSX_CHARS_OF_SET( HeaderSupported, HEADER_SUPPORTED, OptionTag, Cstr, char )
TELSX_CHARS_OF_SET( HeaderSupported, HEADER_SUPPORTED, OptionTag, Wcstr, wchar_t )

RT_END

#endif
