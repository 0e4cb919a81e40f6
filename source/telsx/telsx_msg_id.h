/* Message id: the name of a body part, as in a Content-ID, without its angle brackets. Case-sensitive.
 *
 *     msg-id = "<" id-left "@" id-right ">"
 *     id-left = dot-atom-text
 *     id-right = dot-atom-text / no-fold-literal
 *     dot-atom-text = 1*atext *( "." 1*atext )
 *     no-fold-literal = "[" *dtext "]"
 *
 * (RFC 8262, 3; RFC 5322, 3.2.3, 3.4.1 and 3.6.4) The obsolete forms of RFC 5322 are not message ids. */
#ifndef TELSX_TELSX_MSG_ID_H
#define TELSX_TELSX_MSG_ID_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a message id; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxMsgIdOk( RT_STRING msgId );

/* How many code points at the start of the text form a message id (see telsx_skip.h). */
RT_API int64_t telsx___SkipMsgId( const RT_CHAR *chs, int64_t length );

RT_END

#endif
