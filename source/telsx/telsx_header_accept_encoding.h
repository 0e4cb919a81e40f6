/* Accept-Encoding header: which content codings a party understands (RFC 3261, 20.2).
 *
 *     Accept-Encoding = "Accept-Encoding" HCOLON [ encoding *( COMMA encoding ) ]
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_accept_encoding.h);
 * each is written on a line of its own. Two headers compare by these texts. A raw header without lines is
 * bad text; one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_ACCEPT_ENCODING_H
#define TELSX_TELSX_HEADER_ACCEPT_ENCODING_H

#include "telsx/telsx_accept_encoding.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderAcceptEncoding, HEADER_ACCEPT_ENCODING )
TELSX_FREE_FUNC( HeaderAcceptEncoding )

/* A header without values. */
RT_API TELSX_HEADER_ACCEPT_ENCODING telsxHeaderAcceptEncodingCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderAcceptEncodingAcceptEncodingsLength( TELSX_HEADER_ACCEPT_ENCODING hdr );
RT_API TELSX_ACCEPT_ENCODING
telsxHeaderAcceptEncodingTryDecodeAcceptEncodingAt( TELSX_HEADER_ACCEPT_ENCODING hdr, int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderAcceptEncodingSetAcceptEncodingAt( TELSX_HEADER_ACCEPT_ENCODING *hdr, int64_t index,
                                                          TELSX_ACCEPT_ENCODING acceptEncoding );
RT_API void telsxHeaderAcceptEncodingDelAcceptEncodingAt( TELSX_HEADER_ACCEPT_ENCODING *hdr, int64_t index );
RT_API void telsxHeaderAcceptEncodingPrependAcceptEncoding( TELSX_HEADER_ACCEPT_ENCODING *hdr,
                                                            TELSX_ACCEPT_ENCODING acceptEncoding );
RT_API void telsxHeaderAcceptEncodingAppendAcceptEncoding( TELSX_HEADER_ACCEPT_ENCODING *hdr,
                                                           TELSX_ACCEPT_ENCODING acceptEncoding );
RT_API void telsxHeaderAcceptEncodingInsertAcceptEncoding( TELSX_HEADER_ACCEPT_ENCODING *hdr, int64_t index,
                                                           TELSX_ACCEPT_ENCODING acceptEncoding );
RT_API void telsxHeaderAcceptEncodingClearAcceptEncodings( TELSX_HEADER_ACCEPT_ENCODING *hdr );

RT_END

#endif
