/* Content-Type header: what kind of body a message has (RFC 3261, 20.15).
 *
 *     Content-Type = ( "Content-Type" / "c" ) HCOLON media-type
 *     media-type = m-type SLASH m-subtype *( SEMI m-parameter )
 *     m-parameter = m-attribute EQUAL ( token / quoted-string )
 *
 * Text with a parameter that has no value is bad. Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_CONTENT_TYPE_H
#define TELSX_TELSX_HEADER_CONTENT_TYPE_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderContentType, HEADER_CONTENT_TYPE )
TELSX_FREE_FUNC( HeaderContentType )

/* A header with this type and subtype and nothing else. Aborts unless telsxMediaTypeOk and telsxMediaSubtypeOk. */
RT_API TELSX_HEADER_CONTENT_TYPE telsxHeaderContentTypeCreate( RT_STRING mediaType, RT_STRING mediaSubtype );

/* The two halves, in lower case, never null. SetMediaType aborts unless telsxMediaTypeOk, and SetMediaSubtype unless
 * telsxMediaSubtypeOk. */
RT_API RT_STRING telsxHeaderContentTypeMediaType( TELSX_HEADER_CONTENT_TYPE hdr );
RT_API void telsxHeaderContentTypeSetMediaType( TELSX_HEADER_CONTENT_TYPE *hdr, RT_STRING mediaType );
RT_API RT_STRING telsxHeaderContentTypeMediaSubtype( TELSX_HEADER_CONTENT_TYPE hdr );
RT_API void telsxHeaderContentTypeSetMediaSubtype( TELSX_HEADER_CONTENT_TYPE *hdr, RT_STRING mediaSubtype );

/* The character set of a text, in lower case, or null. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxHeaderContentTypeCharset( TELSX_HEADER_CONTENT_TYPE hdr );
RT_API RT_BOOL telsxHeaderContentTypeHasCharset( TELSX_HEADER_CONTENT_TYPE hdr );
RT_API void telsxHeaderContentTypeSetCharset( TELSX_HEADER_CONTENT_TYPE *hdr, RT_STRING charset );
RT_API void telsxHeaderContentTypeDelCharset( TELSX_HEADER_CONTENT_TYPE *hdr );

/* What separates the parts of a multipart body, plain and in its original case, or null; written in quotes unless it is
 * a token. Set aborts unless telsxBoundaryOk. */
RT_API RT_STRING telsxHeaderContentTypeBoundary( TELSX_HEADER_CONTENT_TYPE hdr );
RT_API RT_BOOL telsxHeaderContentTypeHasBoundary( TELSX_HEADER_CONTENT_TYPE hdr );
RT_API void telsxHeaderContentTypeSetBoundary( TELSX_HEADER_CONTENT_TYPE *hdr, RT_STRING boundary );
RT_API void telsxHeaderContentTypeDelBoundary( TELSX_HEADER_CONTENT_TYPE *hdr );

/* All other parameters, never null, among them a charset or boundary that is not a valid one. When the text is written,
 * a field takes precedence over a parameter of its name. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderContentTypeGenericParams( TELSX_HEADER_CONTENT_TYPE hdr );
RT_API void telsxHeaderContentTypeSetGenericParams( TELSX_HEADER_CONTENT_TYPE *hdr,
                                                    TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
