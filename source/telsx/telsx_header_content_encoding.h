/* Content-Encoding header: how a body is compressed (RFC 3261, 20.12).
 *
 *     Content-Encoding = ( "Content-Encoding" / "e" ) HCOLON content-coding *( COMMA content-coding )
 *
 * A list of codings in lower case, in the order in which they were applied; one may stand there twice. All
 * stand on one line when the header is written; an empty list is written without a line. An index out of
 * range aborts, and so does a coding that is not telsxContentCodingOk. */
#ifndef TELSX_TELSX_HEADER_CONTENT_ENCODING_H
#define TELSX_TELSX_HEADER_CONTENT_ENCODING_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderContentEncoding, HEADER_CONTENT_ENCODING )
TELSX_FREE_FUNC( HeaderContentEncoding )

/* A header with an empty list. */
RT_API TELSX_HEADER_CONTENT_ENCODING telsxHeaderContentEncodingCreate( void );

/* The codings: the vector of all, a new reference; their number; the one at the index. */
RT_API RT_VECTOR telsxHeaderContentEncodingContentCodingsVector( TELSX_HEADER_CONTENT_ENCODING hdr );
RT_API int64_t telsxHeaderContentEncodingContentCodingsLength( TELSX_HEADER_CONTENT_ENCODING hdr );
RT_API RT_STRING telsxHeaderContentEncodingContentCodingAt( TELSX_HEADER_CONTENT_ENCODING hdr,
                                                            int64_t index );

/* Changes of the list. SetContentCodingsVector fills it anew; null aborts, and so does an element that is no
 * string. */
RT_API void telsxHeaderContentEncodingClearContentCodings( TELSX_HEADER_CONTENT_ENCODING *hdr );
RT_API void telsxHeaderContentEncodingSetContentCodingAt( TELSX_HEADER_CONTENT_ENCODING *hdr, int64_t index,
                                                          RT_STRING contentCoding );
RT_API void telsxHeaderContentEncodingDelContentCodingAt( TELSX_HEADER_CONTENT_ENCODING *hdr, int64_t index );
RT_API void telsxHeaderContentEncodingPrependContentCoding( TELSX_HEADER_CONTENT_ENCODING *hdr,
                                                            RT_STRING contentCoding );
RT_API void telsxHeaderContentEncodingAppendContentCoding( TELSX_HEADER_CONTENT_ENCODING *hdr,
                                                           RT_STRING contentCoding );
RT_API void telsxHeaderContentEncodingInsertContentCoding( TELSX_HEADER_CONTENT_ENCODING *hdr, int64_t index,
                                                           RT_STRING contentCoding );
RT_API void telsxHeaderContentEncodingSetContentCodingsVector( TELSX_HEADER_CONTENT_ENCODING *hdr,
                                                               RT_VECTOR vec );

RT_END

#endif
