/* Unsupported header: the extensions that a party does not understand (RFC 3261, 20.40).
 *
 *     Unsupported = "Unsupported" HCOLON option-tag *( COMMA option-tag )
 *
 * A set of option tags, in the order in which they came. They are kept in lower case and looked up in any
 * case. All stand on one line when the header is written; an empty set is written without a line. */
#ifndef TELSX_TELSX_HEADER_UNSUPPORTED_H
#define TELSX_TELSX_HEADER_UNSUPPORTED_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderUnsupported, HEADER_UNSUPPORTED )
TELSX_FREE_FUNC( HeaderUnsupported )

/* A header with an empty set. */
RT_API TELSX_HEADER_UNSUPPORTED telsxHeaderUnsupportedCreate( void );

/* The option tags: their number, the one at the index, which must be valid, and a new vector of all. */
RT_API int64_t telsxHeaderUnsupportedOptionTagsLength( TELSX_HEADER_UNSUPPORTED hdr );
RT_API RT_STRING telsxHeaderUnsupportedOptionTagAt( TELSX_HEADER_UNSUPPORTED hdr, int64_t index );
RT_API RT_VECTOR telsxHeaderUnsupportedOptionTagsVector( TELSX_HEADER_UNSUPPORTED hdr );

/* Whether the element is there; adding it; taking it out, which changes nothing if it is absent. They
 * abort unless telsxOptionTagOk. */
RT_API RT_BOOL telsxHeaderUnsupportedHasOptionTag( TELSX_HEADER_UNSUPPORTED hdr, RT_STRING element );
RT_API void telsxHeaderUnsupportedSetOptionTag( TELSX_HEADER_UNSUPPORTED *hdr, RT_STRING element );
RT_API void telsxHeaderUnsupportedDelOptionTag( TELSX_HEADER_UNSUPPORTED *hdr, RT_STRING element );

/* The set emptied, and filled anew with the texts of a vector's elements: null aborts, and so does a text
 * that is not Ok. */
RT_API void telsxHeaderUnsupportedClearOptionTags( TELSX_HEADER_UNSUPPORTED *hdr );
RT_API void telsxHeaderUnsupportedSetOptionTagsVector( TELSX_HEADER_UNSUPPORTED *hdr, RT_VECTOR vec );

RT_END

#endif
