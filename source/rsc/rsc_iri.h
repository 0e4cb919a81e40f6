/* Resource identifiers: IRIs (RFC 3987) and URIs (RFC 3986), with what SIP URIs need (RFC 3261, 25.1).
 *
 * An IRI is a scheme, a colon and the characters of RFC 3987. Two things are wider than there: square
 * brackets may stand anywhere behind the scheme, since SIP writes them in hosts, parameters and headers; and
 * nothing else is asked of the order of the parts. A percent sign needs two hex digits behind it. One thing is
 * narrower, so that addresses without brackets can stand in a list: a comma that "sip:", "sips:" or "tel:", in any case,
 * directly follows ends an IRI, and commas at the end of an IRI are no part of it. */
#ifndef RSC_RSC_IRI_H
#define RSC_RSC_IRI_H

#include "rt/rt.h"

RT_BEGIN

/* What rscGensValidatePart judges. */
#define RSC_GENS_PART_IRI 0

/* Whether the text is a whole IRI. Null and any other part abort. */
RT_API RT_BOOL rscGensValidatePart( int64_t part, RT_STRING text );

/* The URI of an IRI: all ASCII, the host in its IDNA form, other characters as escapes of their UTF-8. A new
 * reference; null only if the text is no IRI. Null aborts. */
RT_API RT_STRING rscTryConvertToUri( RT_STRING iri );

/* The IRI of a URI, or of an IRI: escaped UTF-8 becomes characters where an IRI may hold them, and the host
 * its Unicode form; the seven marks of direction of RFC 3987, 4.1 become or stay escapes. No escape of an
 * ASCII character is undone. A new reference; null only if the text is no IRI. Null aborts. */
RT_API RT_STRING rscTryConvertFromUri( RT_STRING uri );

/* How many code points at the start of the text form the element, 0 for none; each takes as many as it can. A
 * port is one digit or more. SkipIriUntil takes the IRI up to a character, such as a semicolon, that no scheme and
 * no escape holds, and looks at nothing behind it. A negative length aborts, and so does null with a length. */
RT_API int64_t rsc___SkipIri( const RT_CHAR *chs, int64_t length );
RT_API int64_t rsc___SkipIriUntil( const RT_CHAR *chs, int64_t length, RT_CHAR end );
RT_API int64_t rsc___SkipIpV4Address( const RT_CHAR *chs, int64_t length );
RT_API int64_t rsc___SkipIpV6Address( const RT_CHAR *chs, int64_t length );
RT_API int64_t rsc___SkipPort( const RT_CHAR *chs, int64_t length );

/* rscTryConvertFromUri of the URI that SkipIriUntil finds, whose length goes to the last argument, 0 if there is
 * none. */
RT_API RT_STRING rsc___TryConvertUriAtStart( const RT_CHAR *chs, int64_t length, RT_CHAR end,
                                             int64_t *found );

RT_END

#endif
