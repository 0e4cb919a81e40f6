/* IP addresses. */
#ifndef NET_NET_ADDRESS_H
#define NET_NET_ADDRESS_H

#include "rt/rt.h"

RT_BEGIN

/* An IPv4 or IPv6 address. IPv4 sorts before IPv6, then the bytes decide. The text is the one below. */
RT_OBJECT_TYPE( RT_API, netAddress, NET_ADDRESS )

/* The address that is the whole text, in the forms that the skippers below take; a new reference, or null for any other
 * text. */
RT_API NET_ADDRESS netAddressTryCreateFromChars( const RT_CHAR *chs, int64_t length );

/* The shortest text: four decimal numbers, or the canonical form of RFC 5952; a new reference. Aborts for null. */
RT_API RT_STRING netAddressToStringShrink( NET_ADDRESS address );

/* For the libraries above: how many code points at the start of the text form an IPv4 address (RFC 3986, IPv4address)
 * or an IPv6 address without brackets (RFC 3986, IPv6address); 0 for none. Each takes as much as it can. A decimal
 * number is taken whole or not at all, so 1.2.3.256 is not an address. Both abort for a negative length, and for null
 * unless the length is 0. */
RT_API int64_t net___SkipIpV4Address( const RT_CHAR *chs, int64_t length );
RT_API int64_t net___SkipIpV6Address( const RT_CHAR *chs, int64_t length );

RT_END

#endif
