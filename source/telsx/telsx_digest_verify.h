/* Digest verify: the digest that protects a list of security mechanisms.
 *
 *     digest-verify = "d-ver" EQUAL LDQUOT 32LHEX RDQUOT
 *
 * (RFC 3329, 2.2) */
#ifndef TELSX_TELSX_DIGEST_VERIFY_H
#define TELSX_TELSX_DIGEST_VERIFY_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is 32 hex digits in lower case. Aborts for null. */
RT_API RT_BOOL telsxDigestVerifyOk( RT_STRING digestVerify );

/* How many code points at the start of the text form such a digest, without its quotes (see telsx_skip.h). More than 32
 * hex digits are not one. */
RT_API int64_t telsx___SkipDigestVerify( const RT_CHAR *chs, int64_t length );

RT_END

#endif
