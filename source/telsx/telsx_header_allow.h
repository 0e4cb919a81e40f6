/* Allow header: the methods that a party understands (RFC 3261, 20.5).
 *
 *     Allow = "Allow" HCOLON [ Method *( COMMA Method ) ]
 *
 * A set of methods, in the order in which they came. Their case counts. All stand on one line when the
 * header is written; an empty set is written without a line. */
#ifndef TELSX_TELSX_HEADER_ALLOW_H
#define TELSX_TELSX_HEADER_ALLOW_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderAllow, HEADER_ALLOW )
TELSX_FREE_FUNC( HeaderAllow )

/* A header with an empty set. */
RT_API TELSX_HEADER_ALLOW telsxHeaderAllowCreate( void );

/* The methods: their number, the one at the index, which must be valid, and a new vector of all. */
RT_API int64_t telsxHeaderAllowMethodsLength( TELSX_HEADER_ALLOW hdr );
RT_API RT_STRING telsxHeaderAllowMethodAt( TELSX_HEADER_ALLOW hdr, int64_t index );
RT_API RT_VECTOR telsxHeaderAllowMethodsVector( TELSX_HEADER_ALLOW hdr );

/* Whether the element is there; adding it; taking it out, which changes nothing if it is absent. They
 * abort unless telsxMethodOk. */
RT_API RT_BOOL telsxHeaderAllowHasMethod( TELSX_HEADER_ALLOW hdr, RT_STRING element );
RT_API RT_BOOL telsxHeaderAllowHasMethodCstr( TELSX_HEADER_ALLOW hdr, const char *chars, int64_t length );
RT_API RT_BOOL telsxHeaderAllowHasMethodWcstr( TELSX_HEADER_ALLOW hdr, const wchar_t *chars, int64_t length );
RT_API void telsxHeaderAllowSetMethod( TELSX_HEADER_ALLOW *hdr, RT_STRING element );
RT_API void telsxHeaderAllowSetMethodCstr( TELSX_HEADER_ALLOW *hdr, const char *chars, int64_t length );
RT_API void telsxHeaderAllowSetMethodWcstr( TELSX_HEADER_ALLOW *hdr, const wchar_t *chars, int64_t length );
RT_API void telsxHeaderAllowDelMethod( TELSX_HEADER_ALLOW *hdr, RT_STRING element );
RT_API void telsxHeaderAllowDelMethodCstr( TELSX_HEADER_ALLOW *hdr, const char *chars, int64_t length );
RT_API void telsxHeaderAllowDelMethodWcstr( TELSX_HEADER_ALLOW *hdr, const wchar_t *chars, int64_t length );

/* The set emptied, and filled anew with the texts of a vector's elements: null aborts, and so does a text
 * that is not Ok. */
RT_API void telsxHeaderAllowClearMethods( TELSX_HEADER_ALLOW *hdr );
RT_API void telsxHeaderAllowSetMethodsVector( TELSX_HEADER_ALLOW *hdr, RT_VECTOR vec );

RT_END

#endif
