// Credentials (RFC 3261, 20.7; RFC 7616, 3.4).
#include "telsx/telsx_credentials.h"

#include "telsx/telsx_auth.hpp"
#include "telsx/telsx_nonce_count.h"
#include "telsx/telsx_token.h"
#include "telsx/telsx_token68.h"

using namespace telsx;

struct TELSX_CREDENTIALS_
{
    RT_OBJECT object;
    Ref<RT_STRING> scheme; // never null
    Ref<RT_STRING> username;
    Ref<RT_STRING> realm;
    Ref<RT_STRING> nonce;
    Ref<RT_STRING> uri;
    Ref<RT_STRING> response;
    Ref<RT_STRING> algorithm;
    Ref<RT_STRING> cnonce;
    Ref<RT_STRING> opaque;
    Ref<RT_STRING> qop;
    Ref<RT_STRING> nonceCount;
    Ref<RT_STRING> token68;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.scheme, self.username, self.realm, self.nonce, self.uri, self.response,
                         self.algorithm, self.cnonce, self.opaque, self.qop, self.nonceCount, self.token68,
                         self.genericParams );
    }
};

TELSX_DEFINE_VALUE_OBJECT( Credentials, CREDENTIALS, credentials )
TELSX_DEFINE_FIELD( Credentials, credentials, Scheme, scheme, telsxTokenOk( scheme ) )
TELSX_DEFINE_OPTIONAL_FIELD( Credentials, credentials, Username, username, telsxQuotableStringOk( username ) )
TELSX_DEFINE_OPTIONAL_FIELD( Credentials, credentials, Realm, realm, telsxQuotableStringOk( realm ) )
TELSX_DEFINE_OPTIONAL_FIELD( Credentials, credentials, Nonce, nonce, telsxQuotableStringOk( nonce ) )
TELSX_DEFINE_OPTIONAL_FIELD( Credentials, credentials, Uri, uri, telsxQuotableStringOk( uri ) )
TELSX_DEFINE_OPTIONAL_FIELD( Credentials, credentials, Response, response, telsxQuotableStringOk( response ) )
TELSX_DEFINE_OPTIONAL_FIELD( Credentials, credentials, Algorithm, algorithm, telsxTokenOk( algorithm ) )
TELSX_DEFINE_OPTIONAL_FIELD( Credentials, credentials, Cnonce, cnonce, telsxQuotableStringOk( cnonce ) )
TELSX_DEFINE_OPTIONAL_FIELD( Credentials, credentials, Opaque, opaque, telsxQuotableStringOk( opaque ) )
TELSX_DEFINE_OPTIONAL_FIELD( Credentials, credentials, Qop, qop, telsxTokenOk( qop ) )
TELSX_DEFINE_OPTIONAL_FIELD( Credentials, credentials, NonceCount, nonceCount,
                             telsxNonceCountOk( nonceCount ) )
TELSX_DEFINE_OPTIONAL_FIELD( Credentials, credentials, Token68, token68, telsxToken68Ok( token68 ) )
TELSX_DEFINE_FIELD( Credentials, credentials, GenericParams, genericParams, genericParams )

TELSX_CREDENTIALS telsxCredentialsCreate( RT_STRING scheme )
{
    TELSX_ASSERT_OK( telsxTokenOk, scheme );
    TELSX_CREDENTIALS credentials = rt::create<TELSX_CREDENTIALS_>( telsxCredentialsSort() );
    credentials->scheme = share( scheme );
    credentials->genericParams = noGenericParams();
    return credentials;
}

RT_STRING telsx___CredentialsEncode( TELSX_CREDENTIALS credentials )
{
    TELSX_ASSERT( credentials );
    Ref<RT_STRING> text = credentials->scheme;
    if ( credentials->token68 )
    {
        append( text, ' ', credentials->token68 );
        return text.take();
    }
    AuthParamWriter params( text );
    params.write<"username">( credentials->username );
    params.write<"realm">( credentials->realm );
    params.write<"nonce">( credentials->nonce );
    params.write<"uri">( credentials->uri );
    params.write<"response">( credentials->response );
    params.writeToken<"algorithm">( credentials->algorithm );
    params.write<"cnonce">( credentials->cnonce );
    params.write<"opaque">( credentials->opaque );
    params.writeToken<"qop">( credentials->qop );
    params.writeToken<"nc">( credentials->nonceCount );
    params.writeGeneric( credentials->genericParams );
    return text.take();
}

TELSX_CREDENTIALS telsx___CredentialsTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length }, scheme;
    Ref<RT_STRING> token68;
    if ( !takeAuthFront( rest, scheme, token68 ) )
        return nullptr;
    Ref<TELSX_CREDENTIALS> credentials = adopt( telsxCredentialsCreate( scheme.copy().get() ) );
    credentials->token68 = std::move( token68 );

    AuthParamReader param( rest );
    while ( param.next() )
    {
        param.read<"username">( credentials->username );
        param.read<"realm">( credentials->realm );
        param.read<"nonce">( credentials->nonce );
        param.read<"uri">( credentials->uri );
        param.read<"response">( credentials->response );
        param.read<"algorithm">( credentials->algorithm, telsxTokenOk );
        param.read<"cnonce">( credentials->cnonce );
        param.read<"opaque">( credentials->opaque );
        param.read<"qop">( credentials->qop, telsxTokenOk );
        param.read<"nc">( credentials->nonceCount, telsxNonceCountOk );
        param.readGeneric( credentials->genericParams );
    }
    return param.failed() ? nullptr : credentials.take();
}

int64_t telsx___SkipCredentials( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipAuth( { chs, length } );
}
