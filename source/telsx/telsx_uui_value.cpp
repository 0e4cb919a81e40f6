// User-to-user information (RFC 7433, 4.1).
#include "telsx/telsx_uui_value.h"

#include "telsx/telsx_quoted.hpp"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_UUI_VALUE_
{
    RT_OBJECT object;
    Ref<RT_STRING> uuiData;                  // plain, never null
    Ref<RT_STRING> purpose;                  // lower case
    Ref<RT_STRING> content;                  // lower case
    Ref<RT_STRING> encoding;                 // lower case
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.uuiData, self.purpose, self.content, self.encoding, self.genericParams );
    }
};

TELSX_DEFINE_VALUE_OBJECT( UuiValue, UUI_VALUE, uuiValue )
TELSX_DEFINE_FIELD( UuiValue, uuiValue, UuiData, uuiData, telsxQuotableStringOk( uuiData ) )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( UuiValue, uuiValue, Purpose, purpose, telsxTokenOk( purpose ),
                                    telsxTokenNormalize )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( UuiValue, uuiValue, Content, content, telsxTokenOk( content ),
                                    telsxTokenNormalize )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( UuiValue, uuiValue, Encoding, encoding, telsxTokenOk( encoding ),
                                    telsxTokenNormalize )
TELSX_DEFINE_FIELD( UuiValue, uuiValue, GenericParams, genericParams, genericParams )

static Ref<TELSX_UUI_VALUE> create( Ref<RT_STRING> uuiData )
{
    auto uuiValue = adopt( rt::create<TELSX_UUI_VALUE_>( telsxUuiValueSort() ) );
    uuiValue->uuiData = std::move( uuiData );
    uuiValue->genericParams = noGenericParams();
    return uuiValue;
}

TELSX_UUI_VALUE telsxUuiValueCreate( RT_STRING uuiData )
{
    TELSX_ASSERT_OK( telsxQuotableStringOk, uuiData );
    return create( share( uuiData ) ).take();
}

RT_STRING telsx___UuiValueEncode( TELSX_UUI_VALUE uuiValue )
{
    TELSX_ASSERT( uuiValue );
    Ref<RT_STRING> text = adopt( encodeTokenOrQuoted( uuiValue->uuiData.get() ) );
    ParamWriter params( text );
    params.write<"purpose">( uuiValue->purpose );
    params.write<"content">( uuiValue->content );
    params.write<"encoding">( uuiValue->encoding );
    params.writeGeneric( uuiValue->genericParams );
    return text.take();
}

TELSX_UUI_VALUE telsx___UuiValueTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    auto uuiData = takeTokenOrQuoted( rest );
    if ( !uuiData )
        return nullptr;
    Ref<TELSX_UUI_VALUE> uuiValue = create( std::move( uuiData ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.readNormal<"purpose">( uuiValue->purpose, telsx___SkipToken, telsxTokenNormalize );
        param.readNormal<"content">( uuiValue->content, telsx___SkipToken, telsxTokenNormalize );
        param.readNormal<"encoding">( uuiValue->encoding, telsx___SkipToken, telsxTokenNormalize );
        param.storeGeneric( uuiValue->genericParams );
    }
    return param.failed() ? nullptr : uuiValue.take();
}

int64_t telsx___SkipUuiValue( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWithParams( { chs, length }, skipTokenOrQuoted( chs, length ) );
}
