/* Directive: how a caller wants servers to treat a request.
 *
 *     directive = "proxy" / "redirect" / "cancel" / "no-cancel" / "fork" / "no-fork" / "recurse" / "no-recurse"
 *               / "parallel" / "sequential" / "queue" / "no-queue"
 *
 * (RFC 3841, 10) */
#ifndef TELSX_TELSX_DIRECTIVE_H
#define TELSX_TELSX_DIRECTIVE_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a directive; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxDirectiveOk( RT_STRING directive );

/* The directive in lower case, a new reference. Aborts unless telsxDirectiveOk. */
RT_API RT_STRING telsxDirectiveNormalize( RT_STRING directive );

/* How many code points at the start of the text form a directive (see telsx_skip.h). */
RT_API int64_t telsx___SkipDirective( const RT_CHAR *chs, int64_t length );

RT_END

#endif
