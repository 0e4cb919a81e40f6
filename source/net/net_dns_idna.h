/* Internationalised domain names (UTS 46, non-transitional; RFC 5890 to 5893). */
#ifndef NET_NET_DNS_IDNA_H
#define NET_NET_DNS_IDNA_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a host that the two functions below take: an ASCII host, which is labels of letters,
 * digits, inner hyphens and "%HH" escapes with single dots between them and possibly one at the end, or an
 * IPv6 address in square brackets; or a Unicode domain name whose other labels UTS 46 can convert into
 * letters, digits and inner hyphens. A Unicode name has no more than 253 characters in either form, an
 * ending "." not counted (RFC 1035, 2.3.4); an ASCII host may have any length. Null aborts. */
RT_API RT_BOOL netDnsIdnaDomainNameOk( RT_STRING name );

/* The name in ASCII and in Unicode; a new reference. ASCII hosts come back as they are from ToAscii.
 * ToUnicode changes only those "xn--" labels for which the ASCII form of the result is the same label again,
 * letters of any case, and those not in a host that is too long for a Unicode name. Both abort unless
 * netDnsIdnaDomainNameOk, and what either returns is Ok again. */
RT_API RT_STRING netDnsIdnaDomainNameToAscii( RT_STRING name );
RT_API RT_STRING netDnsIdnaDomainNameToUnicode( RT_STRING name );

RT_END

#endif
