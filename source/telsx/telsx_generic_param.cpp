// Generic parameter (RFC 3261, 25.1).
#include "telsx/telsx_generic_param.h"

#include "telsx/telsx_generic_param.hpp"
#include "telsx/telsx_generic_param_name.h"
#include "telsx/telsx_host.h"
#include "telsx/telsx_quotable_string.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_text_forms.hpp"

using namespace telsx;

TELSX_DEFINE_OBJECT( GenericParam, GENERIC_PARAM, telsx___GenericParamFreeFunc,
                     telsx___GenericParamCompareFunc, telsx___GenericParamToStringFunc )
TELSX_DEFINE_FREE_FUNC( GenericParam, param )
TELSX_DEFINE_TO_STRING_FUNC( GenericParam, param )
TELSX_DEFINE_NORMAL_FIELD( GenericParam, param, Name, name, telsxGenericParamNameOk( name ),
                           telsxGenericParamNameNormalize )
TELSX_DEFINE_GETTER( GenericParam, param, ValueType, valueType )
TELSX_DEFINE_GETTER( GenericParam, param, ValueNonNormalized, value )

int64_t telsx___GenericParamCompareFunc( RT_OBJ objA, RT_OBJ objB )
{
    auto paramA = telsxGenericParamFrom( objA ), paramB = telsxGenericParamFrom( objB );
    TELSX_ASSERT( paramA );
    TELSX_ASSERT( paramB );
    auto order = std::tie( paramA->name, paramA->valueType ) <=> std::tie( paramB->name, paramB->valueType );
    if ( order == 0 && paramA->value )
        order = adopt( telsxGenericParamValueNormalized( paramA ) )
                <=> adopt( telsxGenericParamValueNormalized( paramB ) );
    return order < 0 ? -1 : order > 0;
}

TELSX_GENERIC_PARAM telsxGenericParamCreate( RT_STRING name )
{
    TELSX_ASSERT_OK( telsxGenericParamNameOk, name );
    TELSX_GENERIC_PARAM param = rt::create<TELSX_GENERIC_PARAM_>( telsxGenericParamSort() );
    param->name = adopt( telsxGenericParamNameNormalize( name ) );
    return param;
}

TELSX_GENERIC_PARAM telsxGenericParamCreateWithValue( RT_STRING name, int64_t type, RT_STRING value )
{
    Ref<TELSX_GENERIC_PARAM> param = adopt( telsxGenericParamCreate( name ) );
    telsxGenericParamSetValue( param.address(), type, value );
    return param.take();
}

RT_BOOL telsxGenericParamHasValue( TELSX_GENERIC_PARAM param )
{
    TELSX_ASSERT( param );
    return rt::present( param->value );
}

RT_STRING telsxGenericParamValueNormalized( TELSX_GENERIC_PARAM param )
{
    TELSX_ASSERT( param );
    return param->value ? telsxGenericParamValueNormalize( param->valueType, param->value.get() ) : nullptr;
}

void telsxGenericParamSetValue( TELSX_GENERIC_PARAM *param, int64_t type, RT_STRING value )
{
    TELSX_ASSERT_HANDLE( param );
    TELSX_ASSERT( value );
    TELSX_ASSERT( telsxGenericParamValueOk( type, value ) );
    TELSX_GENERIC_PARAM own = TELSX_OWN( param );
    own->valueType = type;
    own->value = share( value );
}

void telsxGenericParamDelValue( TELSX_GENERIC_PARAM *param )
{
    TELSX_ASSERT_HANDLE( param );
    TELSX_GENERIC_PARAM own = TELSX_OWN( param );
    own->valueType = -1;
    own->value = {};
}

void telsxGenericParamNormalizeValue( TELSX_GENERIC_PARAM *param )
{
    TELSX_ASSERT_HANDLE( param );
    if ( auto normal = adopt( telsxGenericParamValueNormalized( *param ) ) )
        TELSX_OWN( param )->value = std::move( normal );
}

RT_STRING telsx___GenericParamEncode( TELSX_GENERIC_PARAM param )
{
    TELSX_ASSERT( param );
    RT_STRING name = param->name.get(), value = param->value.get();
    if ( !value )
        return share( name ).take();
    switch ( param->valueType )
    {
        case TELSX_GENERIC_PARAM_VALUE_TYPE_TOKEN: return joined( name, '=', value ).take();
        case TELSX_GENERIC_PARAM_VALUE_TYPE_HOST:
            return joined( name, '=', adopt( telsx___HostEncode( value ) ) ).take();
        case TELSX_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING:
            return joined( name, '=', adopt( telsx___QuotableStringEncode( value ) ) ).take();
    }
    TELSX_CHECK( false, "TELSX_GENERIC_PARAM_VALUE_TYPE not implemented", "param->valueType" );
    return nullptr;
}

TELSX_GENERIC_PARAM telsx___GenericParamTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Text name = rest.take( telsx___SkipToken );
    if ( !name )
        return nullptr;
    auto param = adopt( telsxGenericParamCreate( name.copy().get() ) );
    if ( !rest )
        return param.take();
    if ( !rest.take( telsx___SkipEqual ) )
        return nullptr;
    if ( Text token = rest.take( telsx___SkipToken ) )
    {
        param->valueType = TELSX_GENERIC_PARAM_VALUE_TYPE_TOKEN;
        param->value = token.copy();
    }
    else if ( Text host = rest.take( telsx___SkipHost ) )
    {
        param->valueType = TELSX_GENERIC_PARAM_VALUE_TYPE_HOST;
        param->value = adopt( host.as( telsx___HostTryDecode ) );
    }
    else
    {
        param->valueType = TELSX_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING;
        param->value = adopt( rest.take( telsx___SkipQuotedString ).as( telsx___QuotableStringTryDecode ) );
    }
    return param->value && !rest ? param.take() : nullptr;
}

// Functions that take a name, with the name as 8-bit and as wide characters

TELSX_DEFINE_TEXT_FORMS( TELSX_GENERIC_PARAM, GenericParamCreate, (), () )
TELSX_DEFINE_TEXT_FORMS( TELSX_GENERIC_PARAM, GenericParamCreateWithValue, (), ( int64_t, RT_STRING ) )
TELSX_DEFINE_TEXT_FORMS( void, GenericParamSetName, (TELSX_GENERIC_PARAM *), () )
