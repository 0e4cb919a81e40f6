/* Message id of a Referred-By token, without its quotes.
 *
 *     sip-clean-msg-id = dot-atom "@" ( dot-atom / host )
 *
 * (RFC 3892, 3) */
#ifndef TELSX_TELSX_SIP_CLEAN_MSG_ID_H
#define TELSX_TELSX_SIP_CLEAN_MSG_ID_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a message id; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxSipCleanMsgIdOk( RT_STRING sipCleanMsgId );

/* How many code points at the start of the text form the element (see telsx_skip.h). */
RT_API int64_t telsx___SkipSipCleanMsgId( const RT_CHAR *chs, int64_t length );

RT_END

#endif
