/* Credentials: how a client answers a challenge.
 *
 *     credentials = auth-scheme [ LWS ( token68 / auth-param *( COMMA auth-param ) ) ]
 *     auth-scheme = token
 *     auth-param = token EQUAL ( token / quoted-string )
 *
 * (RFC 3261, 20.7 and 25.1; RFC 7235, 2.1; RFC 7616, 3.4.) No name occurs twice. Values sort by the fields in the order
 * below. */
#ifndef TELSX_TELSX_CREDENTIALS_H
#define TELSX_TELSX_CREDENTIALS_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( Credentials, CREDENTIALS )
TELSX_COMPARE_FUNC( Credentials )
TELSX_TO_STRING_FUNC( Credentials )

/* Credentials of this scheme and nothing else. Aborts unless telsxTokenOk. */
RT_API TELSX_CREDENTIALS telsxCredentialsCreate( RT_STRING scheme );

/* The scheme, such as Digest, in its original case, never null; it is the same scheme in any case. Set aborts unless
 * telsxTokenOk. */
RT_API RT_STRING telsxCredentialsScheme( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetScheme( TELSX_CREDENTIALS *credentials, RT_STRING scheme );

/* Plain texts, or null: the user; the realm and the nonce of the challenge; the Request-URI as the client hashed it; the
 * digest. Set aborts unless telsxQuotableStringOk. */
RT_API RT_STRING telsxCredentialsUsername( TELSX_CREDENTIALS credentials );
RT_API RT_BOOL telsxCredentialsHasUsername( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetUsername( TELSX_CREDENTIALS *credentials, RT_STRING username );
RT_API void telsxCredentialsDelUsername( TELSX_CREDENTIALS *credentials );
RT_API RT_STRING telsxCredentialsRealm( TELSX_CREDENTIALS credentials );
RT_API RT_BOOL telsxCredentialsHasRealm( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetRealm( TELSX_CREDENTIALS *credentials, RT_STRING realm );
RT_API void telsxCredentialsDelRealm( TELSX_CREDENTIALS *credentials );
RT_API RT_STRING telsxCredentialsNonce( TELSX_CREDENTIALS credentials );
RT_API RT_BOOL telsxCredentialsHasNonce( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetNonce( TELSX_CREDENTIALS *credentials, RT_STRING nonce );
RT_API void telsxCredentialsDelNonce( TELSX_CREDENTIALS *credentials );
RT_API RT_STRING telsxCredentialsUri( TELSX_CREDENTIALS credentials );
RT_API RT_BOOL telsxCredentialsHasUri( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetUri( TELSX_CREDENTIALS *credentials, RT_STRING uri );
RT_API void telsxCredentialsDelUri( TELSX_CREDENTIALS *credentials );
RT_API RT_STRING telsxCredentialsResponse( TELSX_CREDENTIALS credentials );
RT_API RT_BOOL telsxCredentialsHasResponse( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetResponse( TELSX_CREDENTIALS *credentials, RT_STRING response );
RT_API void telsxCredentialsDelResponse( TELSX_CREDENTIALS *credentials );

/* The hash algorithm, in its original case, or null, which stands for MD5. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxCredentialsAlgorithm( TELSX_CREDENTIALS credentials );
RT_API RT_BOOL telsxCredentialsHasAlgorithm( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetAlgorithm( TELSX_CREDENTIALS *credentials, RT_STRING algorithm );
RT_API void telsxCredentialsDelAlgorithm( TELSX_CREDENTIALS *credentials );

/* Plain texts, or null: the client's own nonce; what the challenge had to be sent back. Set aborts unless
 * telsxQuotableStringOk. */
RT_API RT_STRING telsxCredentialsCnonce( TELSX_CREDENTIALS credentials );
RT_API RT_BOOL telsxCredentialsHasCnonce( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetCnonce( TELSX_CREDENTIALS *credentials, RT_STRING cnonce );
RT_API void telsxCredentialsDelCnonce( TELSX_CREDENTIALS *credentials );
RT_API RT_STRING telsxCredentialsOpaque( TELSX_CREDENTIALS credentials );
RT_API RT_BOOL telsxCredentialsHasOpaque( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetOpaque( TELSX_CREDENTIALS *credentials, RT_STRING opaque );
RT_API void telsxCredentialsDelOpaque( TELSX_CREDENTIALS *credentials );

/* The quality of protection, such as auth, in its original case, or null. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxCredentialsQop( TELSX_CREDENTIALS credentials );
RT_API RT_BOOL telsxCredentialsHasQop( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetQop( TELSX_CREDENTIALS *credentials, RT_STRING qop );
RT_API void telsxCredentialsDelQop( TELSX_CREDENTIALS *credentials );

/* How often the client has used the nonce, as it hashed it, or null. Set aborts unless telsxNonceCountOk. */
RT_API RT_STRING telsxCredentialsNonceCount( TELSX_CREDENTIALS credentials );
RT_API RT_BOOL telsxCredentialsHasNonceCount( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetNonceCount( TELSX_CREDENTIALS *credentials, RT_STRING nonceCount );
RT_API void telsxCredentialsDelNonceCount( TELSX_CREDENTIALS *credentials );

/* What some schemes have in place of parameters, or null. When the text is written, it takes precedence over all
 * parameters. Set aborts unless telsxToken68Ok. */
RT_API RT_STRING telsxCredentialsToken68( TELSX_CREDENTIALS credentials );
RT_API RT_BOOL telsxCredentialsHasToken68( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetToken68( TELSX_CREDENTIALS *credentials, RT_STRING token68 );
RT_API void telsxCredentialsDelToken68( TELSX_CREDENTIALS *credentials );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name,
 * and a value that is not a token is written in quotes, also a host and a missing one. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxCredentialsGenericParams( TELSX_CREDENTIALS credentials );
RT_API void telsxCredentialsSetGenericParams( TELSX_CREDENTIALS *credentials,
                                              TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form credentials (see telsx_skip.h). */
RT_API int64_t telsx___SkipCredentials( const RT_CHAR *chs, int64_t length );

RT_END

#endif
