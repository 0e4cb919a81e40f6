// Challenge (RFC 3261, 20.44; RFC 7616, 3.3).
#include "telsx/telsx_challenge.h"

#include "telsx/telsx_auth.hpp"
#include "telsx/telsx_token.h"
#include "telsx/telsx_token68.h"

using namespace telsx;

struct TELSX_CHALLENGE_
{
    RT_OBJECT object;
    Ref<RT_STRING> scheme; // never null
    Ref<RT_STRING> realm;
    Ref<RT_STRING> domain;
    Ref<RT_STRING> nonce;
    Ref<RT_STRING> opaque;
    RT_BOOL stale;
    Ref<RT_STRING> algorithm;
    Ref<RT_STRING> qopOptions;
    Ref<RT_STRING> token68;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.scheme, self.realm, self.domain, self.nonce, self.opaque, self.stale,
                         self.algorithm, self.qopOptions, self.token68, self.genericParams );
    }
};

TELSX_DEFINE_VALUE_OBJECT( Challenge, CHALLENGE, challenge )
TELSX_DEFINE_FIELD( Challenge, challenge, Scheme, scheme, telsxTokenOk( scheme ) )
TELSX_DEFINE_OPTIONAL_FIELD( Challenge, challenge, Realm, realm, telsxQuotableStringOk( realm ) )
TELSX_DEFINE_OPTIONAL_FIELD( Challenge, challenge, Domain, domain, telsxQuotableStringOk( domain ) )
TELSX_DEFINE_OPTIONAL_FIELD( Challenge, challenge, Nonce, nonce, telsxQuotableStringOk( nonce ) )
TELSX_DEFINE_OPTIONAL_FIELD( Challenge, challenge, Opaque, opaque, telsxQuotableStringOk( opaque ) )
TELSX_DEFINE_FLAG( Challenge, challenge, Stale, stale )
TELSX_DEFINE_OPTIONAL_FIELD( Challenge, challenge, Algorithm, algorithm, telsxTokenOk( algorithm ) )
TELSX_DEFINE_OPTIONAL_FIELD( Challenge, challenge, QopOptions, qopOptions,
                             telsxQuotableStringOk( qopOptions ) )
TELSX_DEFINE_OPTIONAL_FIELD( Challenge, challenge, Token68, token68, telsxToken68Ok( token68 ) )
TELSX_DEFINE_FIELD( Challenge, challenge, GenericParams, genericParams, genericParams )

TELSX_CHALLENGE telsxChallengeCreate( RT_STRING scheme )
{
    TELSX_ASSERT_OK( telsxTokenOk, scheme );
    TELSX_CHALLENGE challenge = rt::create<TELSX_CHALLENGE_>( telsxChallengeSort() );
    challenge->scheme = share( scheme );
    challenge->genericParams = noGenericParams();
    return challenge;
}

RT_STRING telsx___ChallengeEncode( TELSX_CHALLENGE challenge )
{
    TELSX_ASSERT( challenge );
    Ref<RT_STRING> text = challenge->scheme;
    if ( challenge->token68 )
    {
        append( text, ' ', challenge->token68 );
        return text.take();
    }
    AuthParamWriter params( text );
    params.write<"realm">( challenge->realm );
    params.write<"domain">( challenge->domain );
    params.write<"nonce">( challenge->nonce );
    params.write<"opaque">( challenge->opaque );
    params.writeToken<"stale">( challenge->stale ? share( literal<"true">() ) : Ref<RT_STRING>() );
    params.writeToken<"algorithm">( challenge->algorithm );
    params.write<"qop">( challenge->qopOptions );
    params.writeGeneric( challenge->genericParams );
    return text.take();
}

TELSX_CHALLENGE telsx___ChallengeTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length }, scheme;
    Ref<RT_STRING> token68;
    if ( !takeAuthFront( rest, scheme, token68 ) )
        return nullptr;
    Ref<TELSX_CHALLENGE> challenge = adopt( telsxChallengeCreate( scheme.copy().get() ) );
    challenge->token68 = std::move( token68 );

    Ref<RT_STRING> stale;
    AuthParamReader param( rest );
    while ( param.next() )
    {
        param.read<"realm">( challenge->realm );
        param.read<"domain">( challenge->domain );
        param.read<"nonce">( challenge->nonce );
        param.read<"opaque">( challenge->opaque );
        param.read<"stale">( stale );
        param.read<"algorithm">( challenge->algorithm, telsxTokenOk );
        param.read<"qop">( challenge->qopOptions );
        param.readGeneric( challenge->genericParams );
    }
    challenge->stale = stale && findWordInAnyCase<"true">( textOf( stale ) );
    return param.failed() ? nullptr : challenge.take();
}

int64_t telsx___SkipChallenge( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipAuth( { chs, length } );
}
