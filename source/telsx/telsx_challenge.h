/* Challenge: what a server wants a client to prove, and how.
 *
 *     challenge = auth-scheme [ LWS ( token68 / auth-param *( COMMA auth-param ) ) ]
 *     auth-scheme = token
 *     auth-param = token EQUAL ( token / quoted-string )
 *
 * (RFC 3261, 20.44 and 25.1; RFC 7235, 2.1; RFC 7616, 3.3.) No name occurs twice. Values sort by the fields in the order
 * below. */
#ifndef TELSX_TELSX_CHALLENGE_H
#define TELSX_TELSX_CHALLENGE_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( Challenge, CHALLENGE )
TELSX_COMPARE_FUNC( Challenge )
TELSX_TO_STRING_FUNC( Challenge )

/* A challenge of this scheme and nothing else. Aborts unless telsxTokenOk. */
RT_API TELSX_CHALLENGE telsxChallengeCreate( RT_STRING scheme );

/* The scheme, such as Digest, in its original case, never null; it is the same scheme in any case. Set aborts unless
 * telsxTokenOk. */
RT_API RT_STRING telsxChallengeScheme( TELSX_CHALLENGE challenge );
RT_API void telsxChallengeSetScheme( TELSX_CHALLENGE *challenge, RT_STRING scheme );

/* Plain texts, or null: the protection space; the URIs that it consists of, with blanks between; what the client is to
 * hash, and what it is only to send back. Set aborts unless telsxQuotableStringOk. */
RT_API RT_STRING telsxChallengeRealm( TELSX_CHALLENGE challenge );
RT_API RT_BOOL telsxChallengeHasRealm( TELSX_CHALLENGE challenge );
RT_API void telsxChallengeSetRealm( TELSX_CHALLENGE *challenge, RT_STRING realm );
RT_API void telsxChallengeDelRealm( TELSX_CHALLENGE *challenge );
RT_API RT_STRING telsxChallengeDomain( TELSX_CHALLENGE challenge );
RT_API RT_BOOL telsxChallengeHasDomain( TELSX_CHALLENGE challenge );
RT_API void telsxChallengeSetDomain( TELSX_CHALLENGE *challenge, RT_STRING domain );
RT_API void telsxChallengeDelDomain( TELSX_CHALLENGE *challenge );
RT_API RT_STRING telsxChallengeNonce( TELSX_CHALLENGE challenge );
RT_API RT_BOOL telsxChallengeHasNonce( TELSX_CHALLENGE challenge );
RT_API void telsxChallengeSetNonce( TELSX_CHALLENGE *challenge, RT_STRING nonce );
RT_API void telsxChallengeDelNonce( TELSX_CHALLENGE *challenge );
RT_API RT_STRING telsxChallengeOpaque( TELSX_CHALLENGE challenge );
RT_API RT_BOOL telsxChallengeHasOpaque( TELSX_CHALLENGE challenge );
RT_API void telsxChallengeSetOpaque( TELSX_CHALLENGE *challenge, RT_STRING opaque );
RT_API void telsxChallengeDelOpaque( TELSX_CHALLENGE *challenge );

/* Whether only the nonce was too old, so that the client may try again without asking for a password. Any value but
 * true, in any case, is read as false; false is not written. */
RT_API RT_BOOL telsxChallengeStale( TELSX_CHALLENGE challenge );
RT_API void telsxChallengeSetStale( TELSX_CHALLENGE *challenge, RT_BOOL stale );

/* The hash algorithm, such as SHA-256, in its original case, or null, which stands for MD5. Set aborts unless
 * telsxTokenOk. */
RT_API RT_STRING telsxChallengeAlgorithm( TELSX_CHALLENGE challenge );
RT_API RT_BOOL telsxChallengeHasAlgorithm( TELSX_CHALLENGE challenge );
RT_API void telsxChallengeSetAlgorithm( TELSX_CHALLENGE *challenge, RT_STRING algorithm );
RT_API void telsxChallengeDelAlgorithm( TELSX_CHALLENGE *challenge );

/* The qualities of protection to choose from, such as auth,auth-int, plain, or null. Set aborts unless
 * telsxQuotableStringOk. */
RT_API RT_STRING telsxChallengeQopOptions( TELSX_CHALLENGE challenge );
RT_API RT_BOOL telsxChallengeHasQopOptions( TELSX_CHALLENGE challenge );
RT_API void telsxChallengeSetQopOptions( TELSX_CHALLENGE *challenge, RT_STRING qopOptions );
RT_API void telsxChallengeDelQopOptions( TELSX_CHALLENGE *challenge );

/* What some schemes have in place of parameters, or null. When the text is written, it takes precedence over all
 * parameters. Set aborts unless telsxToken68Ok. */
RT_API RT_STRING telsxChallengeToken68( TELSX_CHALLENGE challenge );
RT_API RT_BOOL telsxChallengeHasToken68( TELSX_CHALLENGE challenge );
RT_API void telsxChallengeSetToken68( TELSX_CHALLENGE *challenge, RT_STRING token68 );
RT_API void telsxChallengeDelToken68( TELSX_CHALLENGE *challenge );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name,
 * and a value that is not a token is written in quotes, also a host and a missing one. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxChallengeGenericParams( TELSX_CHALLENGE challenge );
RT_API void telsxChallengeSetGenericParams( TELSX_CHALLENGE *challenge, TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form a challenge (see telsx_skip.h). */
RT_API int64_t telsx___SkipChallenge( const RT_CHAR *chs, int64_t length );

RT_END

#endif
