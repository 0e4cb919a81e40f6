/* Authentication-Info header: how a server proves itself after it has taken credentials.
 *
 *     Authentication-Info = "Authentication-Info" HCOLON [ ainfo *( COMMA ainfo ) ]
 *     ainfo = nextnonce / message-qop / response-auth / cnonce / nonce-count / auth-param
 *     nextnonce = "nextnonce" EQUAL quoted-string
 *     response-auth = "rspauth" EQUAL quoted-string
 *     auth-param = token EQUAL ( token / quoted-string )
 *
 * (RFC 3261, 20.6; RFC 7615, 3; RFC 7616, 3.5.) No name occurs twice. Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_AUTHENTICATION_INFO_H
#define TELSX_TELSX_HEADER_AUTHENTICATION_INFO_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderAuthenticationInfo, HEADER_AUTHENTICATION_INFO )
TELSX_FREE_FUNC( HeaderAuthenticationInfo )

/* A header without parameters. */
RT_API TELSX_HEADER_AUTHENTICATION_INFO telsxHeaderAuthenticationInfoCreate( void );

/* The nonce that the client is to use next, plain, or null. Set aborts unless telsxQuotableStringOk. */
RT_API RT_STRING telsxHeaderAuthenticationInfoNextNonce( TELSX_HEADER_AUTHENTICATION_INFO hdr );
RT_API RT_BOOL telsxHeaderAuthenticationInfoHasNextNonce( TELSX_HEADER_AUTHENTICATION_INFO hdr );
RT_API void telsxHeaderAuthenticationInfoSetNextNonce( TELSX_HEADER_AUTHENTICATION_INFO *hdr,
                                                       RT_STRING nextNonce );
RT_API void telsxHeaderAuthenticationInfoDelNextNonce( TELSX_HEADER_AUTHENTICATION_INFO *hdr );

/* The quality of protection, such as auth, in its original case, or null. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxHeaderAuthenticationInfoQop( TELSX_HEADER_AUTHENTICATION_INFO hdr );
RT_API RT_BOOL telsxHeaderAuthenticationInfoHasQop( TELSX_HEADER_AUTHENTICATION_INFO hdr );
RT_API void telsxHeaderAuthenticationInfoSetQop( TELSX_HEADER_AUTHENTICATION_INFO *hdr, RT_STRING qop );
RT_API void telsxHeaderAuthenticationInfoDelQop( TELSX_HEADER_AUTHENTICATION_INFO *hdr );

/* Plain texts, or null: the server's digest; the client's nonce. Set aborts unless telsxQuotableStringOk. */
RT_API RT_STRING telsxHeaderAuthenticationInfoRspauth( TELSX_HEADER_AUTHENTICATION_INFO hdr );
RT_API RT_BOOL telsxHeaderAuthenticationInfoHasRspauth( TELSX_HEADER_AUTHENTICATION_INFO hdr );
RT_API void telsxHeaderAuthenticationInfoSetRspauth( TELSX_HEADER_AUTHENTICATION_INFO *hdr,
                                                     RT_STRING rspauth );
RT_API void telsxHeaderAuthenticationInfoDelRspauth( TELSX_HEADER_AUTHENTICATION_INFO *hdr );
RT_API RT_STRING telsxHeaderAuthenticationInfoCnonce( TELSX_HEADER_AUTHENTICATION_INFO hdr );
RT_API RT_BOOL telsxHeaderAuthenticationInfoHasCnonce( TELSX_HEADER_AUTHENTICATION_INFO hdr );
RT_API void telsxHeaderAuthenticationInfoSetCnonce( TELSX_HEADER_AUTHENTICATION_INFO *hdr, RT_STRING cnonce );
RT_API void telsxHeaderAuthenticationInfoDelCnonce( TELSX_HEADER_AUTHENTICATION_INFO *hdr );

/* How often the client has used the nonce, as in its credentials, or null. Set aborts unless telsxNonceCountOk. */
RT_API RT_STRING telsxHeaderAuthenticationInfoNonceCount( TELSX_HEADER_AUTHENTICATION_INFO hdr );
RT_API RT_BOOL telsxHeaderAuthenticationInfoHasNonceCount( TELSX_HEADER_AUTHENTICATION_INFO hdr );
RT_API void telsxHeaderAuthenticationInfoSetNonceCount( TELSX_HEADER_AUTHENTICATION_INFO *hdr,
                                                        RT_STRING nonceCount );
RT_API void telsxHeaderAuthenticationInfoDelNonceCount( TELSX_HEADER_AUTHENTICATION_INFO *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name,
 * and a value that is not a token is written in quotes, also a host and a missing one. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS
telsxHeaderAuthenticationInfoGenericParams( TELSX_HEADER_AUTHENTICATION_INFO hdr );
RT_API void telsxHeaderAuthenticationInfoSetGenericParams( TELSX_HEADER_AUTHENTICATION_INFO *hdr,
                                                           TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
