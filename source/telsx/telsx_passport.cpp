// PASSporT (RFC 8224, 4).
#include "telsx/telsx_passport.h"

#include "telsx/telsx_info.hpp"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_signed_identity_digest.h"
#include "telsx/telsx_token.h"

using namespace telsx;

struct TELSX_PASSPORT_
{
    RT_OBJECT object;
    Ref<RT_STRING> digest; // never null
    Ref<RT_STRING> info;   // never null
    Ref<RT_STRING> alg;
    Ref<RT_STRING> ppt;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.digest, self.info, self.alg, self.ppt, self.genericParams );
    }
};

TELSX_DEFINE_VALUE_OBJECT( Passport, PASSPORT, passport )
TELSX_DEFINE_FIELD( Passport, passport, Digest, digest, telsxSignedIdentityDigestOk( digest ) )
TELSX_DEFINE_FIELD( Passport, passport, Info, info, telsxIriOk( info ) )
TELSX_DEFINE_OPTIONAL_FIELD( Passport, passport, Alg, alg, telsxTokenOk( alg ) )
TELSX_DEFINE_OPTIONAL_FIELD( Passport, passport, Ppt, ppt, telsxTokenOk( ppt ) )
TELSX_DEFINE_FIELD( Passport, passport, GenericParams, genericParams, genericParams )

static Ref<TELSX_PASSPORT> create( Ref<RT_STRING> digest, Ref<RT_STRING> info )
{
    auto passport = adopt( rt::create<TELSX_PASSPORT_>( telsxPassportSort() ) );
    passport->digest = std::move( digest );
    passport->info = std::move( info );
    passport->genericParams = noGenericParams();
    return passport;
}

TELSX_PASSPORT telsxPassportCreate( RT_STRING digest, RT_STRING info )
{
    TELSX_ASSERT_OK( telsxSignedIdentityDigestOk, digest );
    TELSX_ASSERT_OK( telsxIriOk, info );
    return create( share( digest ), share( info ) ).take();
}

RT_STRING telsx___PassportEncode( TELSX_PASSPORT passport )
{
    TELSX_ASSERT( passport );
    Ref<RT_STRING> text = passport->digest;
    ParamWriter params( text );
    params.write<"info">( passport->info, encodeInfoAddress );
    params.write<"alg">( passport->alg );
    params.write<"ppt">( passport->ppt );
    params.writeGeneric( passport->genericParams );
    return text.take();
}

static RT_STRING tryDecodeInfo( const RT_CHAR *chs, int64_t length )
{
    Text value = { chs, length };
    return takeInfoAddress( value ).take();
}

// The address must be the first parameter.
TELSX_PASSPORT telsx___PassportTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Text digest = rest.take( telsx___SkipSignedIdentityDigest );
    ParamReader param( rest );
    Ref<RT_STRING> info;
    if ( !digest || !param.next() || !param.read<"info">( info, telsx___SkipNameAddr, tryDecodeInfo ) )
        return nullptr;
    Ref<TELSX_PASSPORT> passport = create( digest.copy(), std::move( info ) );

    while ( param.next() )
    {
        param.read<"alg">( passport->alg, telsx___SkipToken );
        param.readInQuotes<"alg", telsx___SkipToken>( passport->alg );
        param.read<"ppt">( passport->ppt, telsx___SkipToken );
        param.readInQuotes<"ppt", telsx___SkipToken>( passport->ppt );
        param.storeGeneric( passport->genericParams );
    }
    return param.failed() ? nullptr : passport.take();
}

int64_t telsx___SkipPassport( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text text = { chs, length }, rest = text;
    bool found = rest.take( telsx___SkipSignedIdentityDigest ) && rest.take( telsx___SkipSemi )
                 && beginsInAnyCase<"info">( rest ) && rest.take( 4 ) && rest.take( telsx___SkipEqual )
                 && rest.take( telsx___SkipLaquot ) && rest.take( telsx___SkipUri )
                 && rest.take( telsx___SkipRaquot );
    return skipWithParams( text, found ? length - rest.length : 0 );
}
