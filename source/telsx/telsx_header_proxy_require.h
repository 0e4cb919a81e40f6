/* Proxy-Require header: the extensions that proxies must understand (RFC 3261, 20.29).
 *
 *     Proxy-Require = "Proxy-Require" HCOLON option-tag *( COMMA option-tag )
 *
 * A set of option tags, in the order in which they came. They are kept in lower case and looked up in any
 * case. All stand on one line when the header is written; an empty set is written without a line. */
#ifndef TELSX_TELSX_HEADER_PROXY_REQUIRE_H
#define TELSX_TELSX_HEADER_PROXY_REQUIRE_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderProxyRequire, HEADER_PROXY_REQUIRE )
TELSX_FREE_FUNC( HeaderProxyRequire )

/* A header with an empty set. */
RT_API TELSX_HEADER_PROXY_REQUIRE telsxHeaderProxyRequireCreate( void );

/* The option tags: their number, the one at the index, which must be valid, and a new vector of all. */
RT_API int64_t telsxHeaderProxyRequireOptionTagsLength( TELSX_HEADER_PROXY_REQUIRE hdr );
RT_API RT_STRING telsxHeaderProxyRequireOptionTagAt( TELSX_HEADER_PROXY_REQUIRE hdr, int64_t index );
RT_API RT_VECTOR telsxHeaderProxyRequireOptionTagsVector( TELSX_HEADER_PROXY_REQUIRE hdr );

/* Whether the element is there; adding it; taking it out, which changes nothing if it is absent. They
 * abort unless telsxOptionTagOk. */
RT_API RT_BOOL telsxHeaderProxyRequireHasOptionTag( TELSX_HEADER_PROXY_REQUIRE hdr, RT_STRING element );
RT_API void telsxHeaderProxyRequireSetOptionTag( TELSX_HEADER_PROXY_REQUIRE *hdr, RT_STRING element );
RT_API void telsxHeaderProxyRequireDelOptionTag( TELSX_HEADER_PROXY_REQUIRE *hdr, RT_STRING element );

/* The set emptied, and filled anew with the texts of a vector's elements: null aborts, and so does a text
 * that is not Ok. */
RT_API void telsxHeaderProxyRequireClearOptionTags( TELSX_HEADER_PROXY_REQUIRE *hdr );
RT_API void telsxHeaderProxyRequireSetOptionTagsVector( TELSX_HEADER_PROXY_REQUIRE *hdr, RT_VECTOR vec );

RT_END

#endif
