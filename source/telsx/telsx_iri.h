/* IRI: the address that objects hold (RFC 3987) where the wire carries a URI (RFC 3986; RFC 3261, 19.1).
 *
 *     addr-spec = SIP-URI / SIPS-URI / absoluteURI  ; RFC 3261
 *     uric = reserved / unreserved / escaped
 *
 * (RFC 3261, 25.1) */
#ifndef TELSX_TELSX_IRI_H
#define TELSX_TELSX_IRI_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is an IRI of any scheme (see rsc/rsc_iri.h). Aborts for null. */
RT_API RT_BOOL telsxIriOk( RT_STRING iri );

/* How many code points at the start of the text form the element (see telsx_skip.h). A URI includes its parameters, as
 * is right in angle brackets. The bare form (RFC 3261, addr-spec) ends at the first semicolon, since the parameters
 * after it are the header's. Uric takes a run of uric characters and escapes. */
RT_API int64_t telsx___SkipUri( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipAddrSpec( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipUric( const RT_CHAR *chs, int64_t length );

RT_END

#endif
