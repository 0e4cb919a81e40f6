// Accept value (RFC 3261, 20.1).
#include "telsx/telsx_accept.h"

#include "telsx/telsx_media_subtype.h"
#include "telsx/telsx_media_type.h"
#include "telsx/telsx_qvalue.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_ACCEPT_
{
    RT_OBJECT object;
    Ref<RT_STRING> mediaType;                // lower case; null for the star
    Ref<RT_STRING> mediaSubtype;             // lower case; null for the star
    int64_t qvalue;                          // thousandths
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.mediaType, self.mediaSubtype, self.qvalue, self.genericParams );
    }
};

TELSX_DEFINE_VALUE_OBJECT( Accept, ACCEPT, accept )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( Accept, accept, MediaType, mediaType, telsxMediaTypeOk( mediaType ),
                                    telsxMediaTypeNormalize )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( Accept, accept, MediaSubtype, mediaSubtype,
                                    telsxMediaSubtypeOk( mediaSubtype ), telsxMediaSubtypeNormalize )
TELSX_DEFINE_OPTIONAL_FIELD( Accept, accept, Qvalue, qvalue, telsxQvalueOk( qvalue ) )
TELSX_DEFINE_FIELD( Accept, accept, GenericParams, genericParams, genericParams )

TELSX_ACCEPT telsxAcceptCreate( void )
{
    TELSX_ACCEPT accept = rt::create<TELSX_ACCEPT_>( telsxAcceptSort() );
    accept->genericParams = noGenericParams();
    return accept;
}

RT_STRING telsx___AcceptEncode( TELSX_ACCEPT accept )
{
    TELSX_ASSERT( accept );
    Ref<RT_STRING> text = accept->mediaType ? accept->mediaType : adopt( literal<"*">() );
    append( text, '/',
            accept->mediaType && accept->mediaSubtype ? accept->mediaSubtype.get() : literal<"*">() );
    ParamWriter params( text );
    params.write<"q">( accept->qvalue, telsx___QvalueEncode );
    params.writeGeneric( accept->genericParams );
    return text.take();
}

static int64_t skipStar( const RT_CHAR *chs, int64_t length ) { return telsx___SkipChar( chs, length, '*' ); }

TELSX_ACCEPT telsx___AcceptTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Text type = rest.take( telsx___SkipMediaType );
    if ( ( !type && !rest.take( skipStar ) ) || !rest.take( telsx___SkipSlash ) )
        return nullptr;
    Text subtype = rest.take( telsx___SkipMediaSubtype );
    if ( subtype ? !type : !rest.take( skipStar ) )
        return nullptr;
    Ref<TELSX_ACCEPT> accept = adopt( telsxAcceptCreate() );
    if ( type )
        telsxAcceptSetMediaType( accept.address(), type.copy().get() );
    if ( subtype )
        telsxAcceptSetMediaSubtype( accept.address(), subtype.copy().get() );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.read<"q">( accept->qvalue, telsx___SkipQvalue, telsx___QvalueTryDecode );
        param.storeGeneric( accept->genericParams );
    }
    return param.failed() ? nullptr : accept.take();
}
