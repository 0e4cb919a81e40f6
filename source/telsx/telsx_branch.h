/* Branch: the name of a transaction in a Via value. Case-sensitive.
 *
 *     branch = token
 *
 * (RFC 3261, 25.1, via-branch) */
#ifndef TELSX_TELSX_BRANCH_H
#define TELSX_TELSX_BRANCH_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a branch; the empty text is not one. Aborts for null. */
RT_API RT_BOOL telsxBranchOk( RT_STRING branch );

/* How many code points at the start of the text form a branch (see telsx_skip.h). */
RT_API int64_t telsx___SkipBranch( const RT_CHAR *chs, int64_t length );

RT_END

#endif
