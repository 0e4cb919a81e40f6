// Accept-Encoding value (RFC 3261, 20.2).
#include "telsx/telsx_accept_encoding.h"

#include "telsx/telsx_content_coding.h"
#include "telsx/telsx_qvalue.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_ACCEPT_ENCODING_
{
    RT_OBJECT object;
    Ref<RT_STRING> contentCoding;            // lower case; null for the star
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null
    int64_t qvalue;                          // thousandths

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.contentCoding, self.genericParams, self.qvalue );
    }
    static auto order( auto &self )
    {
        return std::tie( self.contentCoding, self.qvalue, self.genericParams );
    }
};

TELSX_DEFINE_OBJECT( AcceptEncoding, ACCEPT_ENCODING, telsx___AcceptEncodingFreeFunc,
                     telsx___AcceptEncodingCompareFunc, telsx___AcceptEncodingToStringFunc )
TELSX_DEFINE_FREE_FUNC( AcceptEncoding, acceptEncoding )
TELSX_DEFINE_COMPARE_FUNC( AcceptEncoding, acceptEncoding )
TELSX_DEFINE_TO_STRING_FUNC( AcceptEncoding, acceptEncoding )
TELSX_DEFINE_NORMAL_FIELD( AcceptEncoding, acceptEncoding, ContentCoding, contentCoding,
                           telsxContentCodingOk( contentCoding ), telsxContentCodingNormalize )
TELSX_DEFINE_OPTION( AcceptEncoding, acceptEncoding, ContentCoding, contentCoding )
TELSX_DEFINE_FIELD( AcceptEncoding, acceptEncoding, Qvalue, qvalue, telsxQvalueOk( qvalue ) )
TELSX_DEFINE_OPTION( AcceptEncoding, acceptEncoding, Qvalue, qvalue )
TELSX_DEFINE_FIELD( AcceptEncoding, acceptEncoding, GenericParams, genericParams, genericParams )

TELSX_ACCEPT_ENCODING telsxAcceptEncodingCreate( void )
{
    TELSX_ACCEPT_ENCODING acceptEncoding = rt::create<TELSX_ACCEPT_ENCODING_>( telsxAcceptEncodingSort() );
    acceptEncoding->genericParams = noGenericParams();
    return acceptEncoding;
}

TELSX_ACCEPT_ENCODING telsxAcceptEncodingCreateWithContentCoding( RT_STRING contentCoding )
{
    TELSX_ASSERT_OK( telsxContentCodingOk, contentCoding );
    TELSX_ACCEPT_ENCODING acceptEncoding = telsxAcceptEncodingCreate();
    acceptEncoding->contentCoding = adopt( telsxContentCodingNormalize( contentCoding ) );
    return acceptEncoding;
}

RT_STRING telsx___AcceptEncodingEncode( TELSX_ACCEPT_ENCODING acceptEncoding )
{
    TELSX_ASSERT( acceptEncoding );
    Ref<RT_STRING> text =
        acceptEncoding->contentCoding ? acceptEncoding->contentCoding : adopt( literal<"*">() );
    ParamWriter params( text );
    params.write<"q">( acceptEncoding->qvalue, telsx___QvalueEncode );
    params.writeGeneric( acceptEncoding->genericParams );
    return text.take();
}

TELSX_ACCEPT_ENCODING telsx___AcceptEncodingTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Text coding = rest.take( telsx___SkipContentCoding );
    if ( !coding )
        return nullptr;
    auto acceptEncoding = adopt( telsxAcceptEncodingCreateWithContentCoding( coding.copy().get() ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        if ( param.is<"q">( telsx___SkipQvalue ) )
            param.store( acceptEncoding->qvalue, param.value.as( telsx___QvalueTryDecode ) );
        param.storeGeneric( acceptEncoding->genericParams );
    }
    return param.failed() ? nullptr : acceptEncoding.take();
}
