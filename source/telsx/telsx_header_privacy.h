/* Privacy header: how private a message is to be (RFC 3323, 4.2).
 *
 *     Privacy-hdr = "Privacy" HCOLON priv-value *( ";" priv-value )
 *
 * A set of privacy values in lower case, looked up in any case. */
#ifndef TELSX_TELSX_HEADER_PRIVACY_H
#define TELSX_TELSX_HEADER_PRIVACY_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_SET( HeaderPrivacy, HEADER_PRIVACY, PrivValue )
TELSX_CHARS_OF_SET( HeaderPrivacy, HEADER_PRIVACY, PrivValue, Cstr, char )
TELSX_CHARS_OF_SET( HeaderPrivacy, HEADER_PRIVACY, PrivValue, Wcstr, wchar_t )

RT_END

#endif
