/* Internationalised domain names (UTS 46, non-transitional; RFC 5890 to 5893). */
#ifndef NET_NET_DNS_IDNA_H
#define NET_NET_DNS_IDNA_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a host that the two functions below accept: an ASCII host or a Unicode domain name. An ASCII host
 * is labels of letters, digits, inner hyphens and "%HH" escapes, with single dots between them and possibly one at the
 * end, or an IPv6 address in square brackets. A Unicode domain name has other labels too, which UTS 46 can convert to
 * letters, digits and inner hyphens. It has no more than 253 characters in either form, not counting a "." at the end
 * (RFC 1035, 2.3.4); an ASCII host may have any length. Aborts for null. */
RT_API RT_BOOL netDnsIdnaDomainNameOk( RT_STRING name );

/* The name in ASCII and in Unicode; a new reference. ToAscii returns ASCII hosts as they are. ToUnicode changes only
 * those "xn--" labels for which the ASCII form of the result is the same label again, in any case of its letters, and
 * changes nothing in a host that is too long for a Unicode name. Both abort unless netDnsIdnaDomainNameOk; what they
 * return is Ok again. */
RT_API RT_STRING netDnsIdnaDomainNameToAscii( RT_STRING name );
RT_API RT_STRING netDnsIdnaDomainNameToUnicode( RT_STRING name );

RT_END

#endif
