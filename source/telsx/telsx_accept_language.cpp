// Accept-Language value (RFC 3261, 20.3).
#include "telsx/telsx_accept_language.h"

#include "telsx/telsx_language_tag.h"
#include "telsx/telsx_qvalue.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_ACCEPT_LANGUAGE_
{
    RT_OBJECT object;
    Ref<RT_STRING> languageRange;            // lower case; null for the star
    int64_t qvalue;                          // thousandths
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.languageRange, self.qvalue, self.genericParams );
    }
};

TELSX_DEFINE_OBJECT( AcceptLanguage, ACCEPT_LANGUAGE, telsx___AcceptLanguageFreeFunc,
                     telsx___AcceptLanguageCompareFunc, telsx___AcceptLanguageToStringFunc )
TELSX_DEFINE_FREE_FUNC( AcceptLanguage, acceptLanguage )
TELSX_DEFINE_COMPARE_FUNC( AcceptLanguage, acceptLanguage )
TELSX_DEFINE_TO_STRING_FUNC( AcceptLanguage, acceptLanguage )
TELSX_DEFINE_NORMAL_FIELD( AcceptLanguage, acceptLanguage, LanguageRange, languageRange,
                           telsxLanguageTagOk( languageRange ), telsxLanguageTagNormalize )
TELSX_DEFINE_OPTION( AcceptLanguage, acceptLanguage, LanguageRange, languageRange )
TELSX_DEFINE_FIELD( AcceptLanguage, acceptLanguage, Qvalue, qvalue, telsxQvalueOk( qvalue ) )
TELSX_DEFINE_OPTION( AcceptLanguage, acceptLanguage, Qvalue, qvalue )
TELSX_DEFINE_FIELD( AcceptLanguage, acceptLanguage, GenericParams, genericParams, genericParams )

TELSX_ACCEPT_LANGUAGE telsxAcceptLanguageCreate( void )
{
    TELSX_ACCEPT_LANGUAGE acceptLanguage = rt::create<TELSX_ACCEPT_LANGUAGE_>( telsxAcceptLanguageSort() );
    acceptLanguage->genericParams = noGenericParams();
    return acceptLanguage;
}

RT_STRING telsx___AcceptLanguageEncode( TELSX_ACCEPT_LANGUAGE acceptLanguage )
{
    TELSX_ASSERT( acceptLanguage );
    Ref<RT_STRING> text =
        acceptLanguage->languageRange ? acceptLanguage->languageRange : adopt( literal<"*">() );
    ParamWriter params( text );
    params.write<"q">( acceptLanguage->qvalue, telsx___QvalueEncode );
    params.writeGeneric( acceptLanguage->genericParams );
    return text.take();
}

TELSX_ACCEPT_LANGUAGE telsx___AcceptLanguageTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Text tag = rest.take( telsx___SkipLanguageTag );
    if ( !tag && !rest.take( telsx___SkipChar( chs, length, '*' ) ) )
        return nullptr;
    Ref<TELSX_ACCEPT_LANGUAGE> acceptLanguage = adopt( telsxAcceptLanguageCreate() );
    if ( tag )
        telsxAcceptLanguageSetLanguageRange( acceptLanguage.address(), tag.copy().get() );

    ParamReader param( rest );
    while ( param.next() )
    {
        if ( param.is<"q">( telsx___SkipQvalue ) )
            param.store( acceptLanguage->qvalue, param.value.as( telsx___QvalueTryDecode ) );
        param.storeGeneric( acceptLanguage->genericParams );
    }
    return param.failed() ? nullptr : acceptLanguage.take();
}

int64_t telsx___SkipAcceptLanguage( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t tag = telsx___SkipLanguageTag( chs, length );
    return skipWithParams( { chs, length }, tag ? tag : telsx___SkipChar( chs, length, '*' ) );
}
