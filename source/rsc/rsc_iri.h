/* Resource identifiers: IRIs (RFC 3987) and URIs (RFC 3986), with what SIP URIs need (RFC 3261, 25.1).
 *
 * An IRI is a scheme, a colon and the characters of RFC 3987. Two rules are wider than in the RFC: square brackets may
 * stand anywhere after the scheme, since SIP writes them in hosts, parameters and headers; and the order of the parts
 * is not checked otherwise. A percent sign must be followed by two hex digits. One rule is narrower, so that a list can
 * hold addresses without angle brackets: a comma directly before "sip:", "sips:" or "tel:", in any case, ends an IRI,
 * and commas at the end of an IRI are not part of it. */
#ifndef RSC_RSC_IRI_H
#define RSC_RSC_IRI_H

#include "rt/rt.h"

RT_BEGIN

/* What rscGensValidatePart checks. */
#define RSC_GENS_PART_IRI 0

/* Whether the whole text is an IRI. Aborts unless the part is RSC_GENS_PART_IRI, and for null. */
RT_API RT_BOOL rscGensValidatePart( int64_t part, RT_STRING text );

/* The URI of an IRI: all ASCII, the host in its IDNA form, other characters as escapes of their UTF-8. A new reference,
 * or null if the text is not an IRI. Aborts for null. */
RT_API RT_STRING rscTryConvertToUri( RT_STRING iri );

/* The IRI of a URI, or of an IRI: escaped UTF-8 becomes characters where an IRI may hold them, and the host becomes its
 * Unicode form. The seven directional marks of RFC 3987, 4.1 become or stay escapes, and escapes of ASCII characters
 * stay too. A new reference, or null if the text is not an IRI. Aborts for null. */
RT_API RT_STRING rscTryConvertFromUri( RT_STRING uri );

/* How many code points at the start of the text form the element; 0 for none. Each takes as many as it can. A port is
 * one or more digits. SkipIriUntil takes the IRI up to a character, such as a semicolon, that no scheme and no escape
 * holds, and looks at nothing after it. All abort for a negative length, and for null unless the length is 0. */
RT_API int64_t rsc___SkipIri( const RT_CHAR *chs, int64_t length );
RT_API int64_t rsc___SkipIriUntil( const RT_CHAR *chs, int64_t length, RT_CHAR end );
RT_API int64_t rsc___SkipIpV4Address( const RT_CHAR *chs, int64_t length );
RT_API int64_t rsc___SkipIpV6Address( const RT_CHAR *chs, int64_t length );
RT_API int64_t rsc___SkipPort( const RT_CHAR *chs, int64_t length );

/* rscTryConvertFromUri for the URI that SkipIriUntil finds. Its length goes to the last argument, 0 if there is no URI.
 */
RT_API RT_STRING rsc___TryConvertUriAtStart( const RT_CHAR *chs, int64_t length, RT_CHAR end,
                                             int64_t *found );

RT_END

#endif
