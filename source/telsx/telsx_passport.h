/* PASSporT: the value of an Identity header, which vouches for the identity of a caller.
 *
 *     passport = signed-identity-digest SEMI ident-info *( SEMI ident-info-params )
 *     ident-info = "info" EQUAL LAQUOT absoluteURI RAQUOT
 *     ident-info-params = ident-info-alg / ident-type / generic-param
 *     ident-info-alg = "alg" EQUAL token
 *     ident-type = "ppt" EQUAL token
 *
 * (RFC 8224, 4) Tokens in quotes, which some peers send, are read as well. Values sort by the fields in the order
 * below. */
#ifndef TELSX_TELSX_PASSPORT_H
#define TELSX_TELSX_PASSPORT_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( Passport, PASSPORT )
TELSX_COMPARE_FUNC( Passport )
TELSX_TO_STRING_FUNC( Passport )

/* A value with this digest and address, and nothing else. Aborts unless telsxSignedIdentityDigestOk and telsxIriOk.
 * */
RT_API TELSX_PASSPORT telsxPassportCreate( RT_STRING digest, RT_STRING info );

/* The signed identity digest, never null. Set aborts unless telsxSignedIdentityDigestOk. */
RT_API RT_STRING telsxPassportDigest( TELSX_PASSPORT passport );
RT_API void telsxPassportSetDigest( TELSX_PASSPORT *passport, RT_STRING digest );

/* Where the certificate is, as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxPassportInfo( TELSX_PASSPORT passport );
RT_API void telsxPassportSetInfo( TELSX_PASSPORT *passport, RT_STRING info );

/* The algorithm of the signature (alg), and the type of the PASSporT (ppt), such as shaken, or null. Set aborts
 * unless telsxTokenOk. */
RT_API RT_STRING telsxPassportAlg( TELSX_PASSPORT passport );
RT_API RT_BOOL telsxPassportHasAlg( TELSX_PASSPORT passport );
RT_API void telsxPassportSetAlg( TELSX_PASSPORT *passport, RT_STRING alg );
RT_API void telsxPassportDelAlg( TELSX_PASSPORT *passport );
RT_API RT_STRING telsxPassportPpt( TELSX_PASSPORT passport );
RT_API RT_BOOL telsxPassportHasPpt( TELSX_PASSPORT passport );
RT_API void telsxPassportSetPpt( TELSX_PASSPORT *passport, RT_STRING ppt );
RT_API void telsxPassportDelPpt( TELSX_PASSPORT *passport );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxPassportGenericParams( TELSX_PASSPORT passport );
RT_API void telsxPassportSetGenericParams( TELSX_PASSPORT *passport, TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form such a value (see telsx_skip.h). */
RT_API int64_t telsx___SkipPassport( const RT_CHAR *chs, int64_t length );

RT_END

#endif
