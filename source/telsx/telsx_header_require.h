/* Require header: the extensions that the other party must understand (RFC 3261, 20.32).
 *
 *     Require = "Require" HCOLON option-tag *( COMMA option-tag )
 *
 * A set of option tags, in the order in which they came. They are kept in lower case and looked up in any
 * case. All stand on one line when the header is written; an empty set is written without a line. */
#ifndef TELSX_TELSX_HEADER_REQUIRE_H
#define TELSX_TELSX_HEADER_REQUIRE_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderRequire, HEADER_REQUIRE )
TELSX_FREE_FUNC( HeaderRequire )

/* A header with an empty set. */
RT_API TELSX_HEADER_REQUIRE telsxHeaderRequireCreate( void );

/* The option tags: their number, the one at the index, which must be valid, and a new vector of all. */
RT_API int64_t telsxHeaderRequireOptionTagsLength( TELSX_HEADER_REQUIRE hdr );
RT_API RT_STRING telsxHeaderRequireOptionTagAt( TELSX_HEADER_REQUIRE hdr, int64_t index );
RT_API RT_VECTOR telsxHeaderRequireOptionTagsVector( TELSX_HEADER_REQUIRE hdr );

/* Whether the element is there; adding it; taking it out, which changes nothing if it is absent. They
 * abort unless telsxOptionTagOk. */
RT_API RT_BOOL telsxHeaderRequireHasOptionTag( TELSX_HEADER_REQUIRE hdr, RT_STRING element );
RT_API RT_BOOL telsxHeaderRequireHasOptionTagCstr( TELSX_HEADER_REQUIRE hdr, const char *chars,
                                                   int64_t length );
RT_API RT_BOOL telsxHeaderRequireHasOptionTagWcstr( TELSX_HEADER_REQUIRE hdr, const wchar_t *chars,
                                                    int64_t length );
RT_API void telsxHeaderRequireSetOptionTag( TELSX_HEADER_REQUIRE *hdr, RT_STRING element );
RT_API void telsxHeaderRequireSetOptionTagCstr( TELSX_HEADER_REQUIRE *hdr, const char *chars,
                                                int64_t length );
RT_API void telsxHeaderRequireSetOptionTagWcstr( TELSX_HEADER_REQUIRE *hdr, const wchar_t *chars,
                                                 int64_t length );
RT_API void telsxHeaderRequireDelOptionTag( TELSX_HEADER_REQUIRE *hdr, RT_STRING element );
RT_API void telsxHeaderRequireDelOptionTagCstr( TELSX_HEADER_REQUIRE *hdr, const char *chars,
                                                int64_t length );
RT_API void telsxHeaderRequireDelOptionTagWcstr( TELSX_HEADER_REQUIRE *hdr, const wchar_t *chars,
                                                 int64_t length );

/* The set emptied, and filled anew with the texts of a vector's elements: null aborts, and so does a text
 * that is not Ok. */
RT_API void telsxHeaderRequireClearOptionTags( TELSX_HEADER_REQUIRE *hdr );
RT_API void telsxHeaderRequireSetOptionTagsVector( TELSX_HEADER_REQUIRE *hdr, RT_VECTOR vec );

RT_END

#endif
