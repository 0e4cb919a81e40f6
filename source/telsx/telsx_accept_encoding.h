/* Accept-Encoding value: a content coding that a party understands.
 *
 *     encoding = codings *( SEMI accept-param )
 *     codings = content-coding / "*"
 *     accept-param = ( "q" EQUAL qvalue ) / generic-param
 *
 * (RFC 3261, 25.1) An absent coding stands for "*". A "*" that was read is a coding of that name, since it is a token.
 * Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_ACCEPT_ENCODING_H
#define TELSX_TELSX_ACCEPT_ENCODING_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( AcceptEncoding, ACCEPT_ENCODING )
TELSX_COMPARE_FUNC( AcceptEncoding )
TELSX_TO_STRING_FUNC( AcceptEncoding )

/* The value "*", and a value with this coding. The latter aborts unless telsxContentCodingOk. */
RT_API TELSX_ACCEPT_ENCODING telsxAcceptEncodingCreate( void );
RT_API TELSX_ACCEPT_ENCODING telsxAcceptEncodingCreateWithContentCoding( RT_STRING contentCoding );

/* The coding, in lower case: "*" for a "*" that was read, null for one that was created. Set aborts unless
 * telsxContentCodingOk. */
RT_API RT_STRING telsxAcceptEncodingContentCoding( TELSX_ACCEPT_ENCODING acceptEncoding );
RT_API RT_BOOL telsxAcceptEncodingHasContentCoding( TELSX_ACCEPT_ENCODING acceptEncoding );
RT_API void telsxAcceptEncodingSetContentCoding( TELSX_ACCEPT_ENCODING *acceptEncoding,
                                                 RT_STRING contentCoding );
RT_API void telsxAcceptEncodingDelContentCoding( TELSX_ACCEPT_ENCODING *acceptEncoding );

/* The weight in thousandths, 0 to 1000, or -1 if there is none. Set aborts unless telsxQvalueOk. */
RT_API int64_t telsxAcceptEncodingQvalue( TELSX_ACCEPT_ENCODING acceptEncoding );
RT_API RT_BOOL telsxAcceptEncodingHasQvalue( TELSX_ACCEPT_ENCODING acceptEncoding );
RT_API void telsxAcceptEncodingSetQvalue( TELSX_ACCEPT_ENCODING *acceptEncoding, int64_t qvalue );
RT_API void telsxAcceptEncodingDelQvalue( TELSX_ACCEPT_ENCODING *acceptEncoding );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxAcceptEncodingGenericParams( TELSX_ACCEPT_ENCODING acceptEncoding );
RT_API void telsxAcceptEncodingSetGenericParams( TELSX_ACCEPT_ENCODING *acceptEncoding,
                                                 TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
