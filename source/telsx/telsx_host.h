/* Host: a domain name or an address.
 *
 *     host = hostname / IPv4address / IPv6reference
 *     hostname = *( domainlabel "." ) domainlabel [ "." ]
 *     domainlabel = ( alphanum / escape ) *( alphanum / "-" / escape ), not ending in "-"
 *     IPv6reference = "[" IPv6address "]"
 *     hostport = host [ ":" port ]
 *
 * (RFC 3261, 25.1, except that the last label may begin with a digit and labels may hold "%HH" escapes, as in RFC
 * 3986.) Objects hold a domain name in its Unicode form (RFC 5891) and an address with its brackets; the wire carries
 * ASCII. */
#ifndef TELSX_TELSX_HOST_H
#define TELSX_TELSX_HOST_H

#include "rt/rt.h"

RT_BEGIN

/* Whether the text is a host that can be written, a Unicode domain name included. Aborts for null. */
RT_API RT_BOOL telsxHostOk( RT_STRING host );

/* For the library's own units. Encode returns the ASCII form, a new reference, and aborts unless telsxHostOk; a host in
 * ASCII stays unchanged. TryDecode takes a whole host and returns the form that objects hold, a new reference, or null
 * for bad text. */
RT_API RT_STRING telsx___HostEncode( RT_STRING host );
RT_API RT_STRING telsx___HostTryDecode( const RT_CHAR *chs, int64_t length );

/* How many code points at the start of the text form the element (see telsx_skip.h). A colon without a port after it is
 * not part of a hostport. */
RT_API int64_t telsx___SkipDomainLabel( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipHostname( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipIpV4Address( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipIpV6Address( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipIpV6Reference( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipHost( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipHostPort( const RT_CHAR *chs, int64_t length );

RT_END

#endif
