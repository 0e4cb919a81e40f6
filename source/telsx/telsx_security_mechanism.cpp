// Security mechanism (RFC 3329, 2.2).
#include "telsx/telsx_security_mechanism.h"

#include "telsx/telsx_digest_verify.h"
#include "telsx/telsx_qvalue.h"
#include "telsx/telsx_token.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_SECURITY_MECHANISM_
{
    RT_OBJECT object;
    Ref<RT_STRING> mechanism; // never null
    int64_t qvalue;           // thousandths
    Ref<RT_STRING> digestAlgorithm;
    Ref<RT_STRING> digestQop;
    Ref<RT_STRING> digestVerify;             // without its quotes
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.mechanism, self.qvalue, self.digestAlgorithm, self.digestQop, self.digestVerify,
                         self.genericParams );
    }
};

TELSX_DEFINE_VALUE_OBJECT( SecurityMechanism, SECURITY_MECHANISM, securityMechanism )
TELSX_DEFINE_FIELD( SecurityMechanism, securityMechanism, Mechanism, mechanism, telsxTokenOk( mechanism ) )
TELSX_DEFINE_OPTIONAL_FIELD( SecurityMechanism, securityMechanism, Qvalue, qvalue, telsxQvalueOk( qvalue ) )
TELSX_DEFINE_OPTIONAL_FIELD( SecurityMechanism, securityMechanism, DigestAlgorithm, digestAlgorithm,
                             telsxTokenOk( digestAlgorithm ) )
TELSX_DEFINE_OPTIONAL_FIELD( SecurityMechanism, securityMechanism, DigestQop, digestQop,
                             telsxTokenOk( digestQop ) )
TELSX_DEFINE_OPTIONAL_FIELD( SecurityMechanism, securityMechanism, DigestVerify, digestVerify,
                             telsxDigestVerifyOk( digestVerify ) )
TELSX_DEFINE_FIELD( SecurityMechanism, securityMechanism, GenericParams, genericParams, genericParams )

TELSX_SECURITY_MECHANISM telsxSecurityMechanismCreate( RT_STRING mechanism )
{
    TELSX_ASSERT_OK( telsxTokenOk, mechanism );
    auto securityMechanism = rt::create<TELSX_SECURITY_MECHANISM_>( telsxSecurityMechanismSort() );
    securityMechanism->mechanism = share( mechanism );
    securityMechanism->genericParams = noGenericParams();
    return securityMechanism;
}

RT_STRING telsx___SecurityMechanismEncode( TELSX_SECURITY_MECHANISM securityMechanism )
{
    TELSX_ASSERT( securityMechanism );
    Ref<RT_STRING> text = securityMechanism->mechanism;
    ParamWriter params( text );
    params.write<"q">( securityMechanism->qvalue, telsx___QvalueEncode );
    params.write<"d-alg">( securityMechanism->digestAlgorithm );
    params.write<"d-qop">( securityMechanism->digestQop );
    params.writeInQuotes<"d-ver">( securityMechanism->digestVerify );
    params.writeGeneric( securityMechanism->genericParams );
    return text.take();
}

TELSX_SECURITY_MECHANISM telsx___SecurityMechanismTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Text mechanism = rest.take( telsx___SkipToken );
    if ( !mechanism )
        return nullptr;
    auto securityMechanism = adopt( telsxSecurityMechanismCreate( mechanism.copy().get() ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.read<"q">( securityMechanism->qvalue, telsx___SkipQvalue, telsx___QvalueTryDecode );
        param.read<"d-alg">( securityMechanism->digestAlgorithm, telsx___SkipToken );
        param.read<"d-qop">( securityMechanism->digestQop, telsx___SkipToken );
        param.readInQuotes<"d-ver", telsx___SkipDigestVerify>( securityMechanism->digestVerify );
        param.storeGeneric( securityMechanism->genericParams );
    }
    return param.failed() ? nullptr : securityMechanism.take();
}

int64_t telsx___SkipSecurityMechanism( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWithParams( { chs, length }, telsx___SkipToken( chs, length ) );
}
