/* User-To-User header: what the parties tell each other through the network (RFC 7433, 4.1).
 *
 *     UUI = "User-to-User" HCOLON uui-value *( COMMA uui-value )
 *
 * A list of values of telsx_uui_value.h. */
#ifndef TELSX_TELSX_HEADER_USER_TO_USER_H
#define TELSX_TELSX_HEADER_USER_TO_USER_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_uui_value.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderUserToUser, HEADER_USER_TO_USER, UuiValue, UUI_VALUE )

RT_END

#endif
