/* In-Reply-To header: the calls that a call answers (RFC 3261, 20.21).
 *
 *     In-Reply-To = "In-Reply-To" HCOLON callid *( COMMA callid )
 *
 * A set of call ids; their case counts. */
#ifndef TELSX_TELSX_HEADER_IN_REPLY_TO_H
#define TELSX_TELSX_HEADER_IN_REPLY_TO_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER_OF_SET( HeaderInReplyTo, HEADER_IN_REPLY_TO, CallId )

RT_END

#endif
