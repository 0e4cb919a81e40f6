/* Supported header: the extensions that a party understands (RFC 3261, 20.37).
 *
 *     Supported = ( "Supported" / "k" ) HCOLON [ option-tag *( COMMA option-tag ) ]
 *
 * A set of option tags, in the order in which they came. They are kept in lower case and looked up in any
 * case. All stand on one line when the header is written; an empty set is written without a line. */
#ifndef TELSX_TELSX_HEADER_SUPPORTED_H
#define TELSX_TELSX_HEADER_SUPPORTED_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderSupported, HEADER_SUPPORTED )
TELSX_FREE_FUNC( HeaderSupported )

/* A header with an empty set. */
RT_API TELSX_HEADER_SUPPORTED telsxHeaderSupportedCreate( void );

/* The option tags: their number, the one at the index, which must be valid, and a new vector of all. */
RT_API int64_t telsxHeaderSupportedOptionTagsLength( TELSX_HEADER_SUPPORTED hdr );
RT_API RT_STRING telsxHeaderSupportedOptionTagAt( TELSX_HEADER_SUPPORTED hdr, int64_t index );
RT_API RT_VECTOR telsxHeaderSupportedOptionTagsVector( TELSX_HEADER_SUPPORTED hdr );

/* Whether the element is there; adding it; taking it out, which changes nothing if it is absent. They
 * abort unless telsxOptionTagOk. */
RT_API RT_BOOL telsxHeaderSupportedHasOptionTag( TELSX_HEADER_SUPPORTED hdr, RT_STRING element );
RT_API RT_BOOL telsxHeaderSupportedHasOptionTagCstr( TELSX_HEADER_SUPPORTED hdr, const char *chars,
                                                     int64_t length );
RT_API RT_BOOL telsxHeaderSupportedHasOptionTagWcstr( TELSX_HEADER_SUPPORTED hdr, const wchar_t *chars,
                                                      int64_t length );
RT_API void telsxHeaderSupportedSetOptionTag( TELSX_HEADER_SUPPORTED *hdr, RT_STRING element );
RT_API void telsxHeaderSupportedSetOptionTagCstr( TELSX_HEADER_SUPPORTED *hdr, const char *chars,
                                                  int64_t length );
RT_API void telsxHeaderSupportedSetOptionTagWcstr( TELSX_HEADER_SUPPORTED *hdr, const wchar_t *chars,
                                                   int64_t length );
RT_API void telsxHeaderSupportedDelOptionTag( TELSX_HEADER_SUPPORTED *hdr, RT_STRING element );
RT_API void telsxHeaderSupportedDelOptionTagCstr( TELSX_HEADER_SUPPORTED *hdr, const char *chars,
                                                  int64_t length );
RT_API void telsxHeaderSupportedDelOptionTagWcstr( TELSX_HEADER_SUPPORTED *hdr, const wchar_t *chars,
                                                   int64_t length );

/* The set emptied, and filled anew with the texts of a vector's elements: null aborts, and so does a text
 * that is not Ok. */
RT_API void telsxHeaderSupportedClearOptionTags( TELSX_HEADER_SUPPORTED *hdr );
RT_API void telsxHeaderSupportedSetOptionTagsVector( TELSX_HEADER_SUPPORTED *hdr, RT_VECTOR vec );

RT_END

#endif
