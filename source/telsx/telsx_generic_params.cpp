// Generic parameters (RFC 3261, 25.1).
#include "telsx/telsx_generic_params.h"

#include <algorithm>

#include "telsx/telsx_generic_param.hpp"
#include "telsx/telsx_generic_param_name.h"
#include "telsx/telsx_generic_params.hpp"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_text_forms.hpp"

using namespace telsx;

TELSX_DEFINE_VALUE_OBJECT( GenericParams, GENERIC_PARAMS, params )

constexpr TELSX_GENERIC_PARAMS_ telsx::emptyGenericParams = {
    RT_STATIC_OBJECT( &telsx___sort_TELSX_GENERIC_PARAMS ), adopt( const_cast<RT_DICT>( &rt___emptyDict ) )
};

TELSX_GENERIC_PARAMS telsxGenericParamsCreate( void ) { return rt::createFrom( noGenericParams().get() ); }

// All parameters

int64_t telsxGenericParamsLength( TELSX_GENERIC_PARAMS params )
{
    TELSX_ASSERT( params );
    return rtDictLength( params->params.get() );
}

RT_VECTOR telsxGenericParamsParamsVector( TELSX_GENERIC_PARAMS params )
{
    TELSX_ASSERT( params );
    return rtDictValuesVector( params->params.get() );
}

void telsxGenericParamsSetParamsVector( TELSX_GENERIC_PARAMS *params, RT_VECTOR vector )
{
    TELSX_ASSERT_HANDLE( params );
    TELSX_ASSERT( vector );
    TELSX_ASSERT( rtVectorContainsOnly( vector, telsxGenericParamSort() ) );
    rtDictClear( TELSX_OWN( params )->params.address() );
    for ( int64_t i = 0; i < rtVectorLength( vector ); ++i )
        telsxGenericParamsSetParam( params,
                                    telsxGenericParamFrom( adopt( rtVectorObjAt( vector, i ) ).get() ) );
}

TELSX_GENERIC_PARAM telsxGenericParamsParamAt( TELSX_GENERIC_PARAMS params, int64_t index )
{
    TELSX_ASSERT( params );
    return telsxGenericParamFrom( rtDictValueAt( params->params.get(), index ) );
}

int64_t telsxGenericParamsParamValueTypeAt( TELSX_GENERIC_PARAMS params, int64_t index )
{
    return telsxGenericParamValueType( adopt( telsxGenericParamsParamAt( params, index ) ).get() );
}

RT_STRING telsxGenericParamsParamValueNormalizedAt( TELSX_GENERIC_PARAMS params, int64_t index )
{
    return telsxGenericParamValueNormalized( adopt( telsxGenericParamsParamAt( params, index ) ).get() );
}

RT_STRING telsxGenericParamsParamValueNonNormalizedAt( TELSX_GENERIC_PARAMS params, int64_t index )
{
    return telsxGenericParamValueNonNormalized( adopt( telsxGenericParamsParamAt( params, index ) ).get() );
}

// Parameters by name

TELSX_GENERIC_PARAM telsxGenericParamsParam( TELSX_GENERIC_PARAMS params, RT_STRING name )
{
    TELSX_ASSERT( params );
    TELSX_ASSERT( name );
    Ref<RT_STRING> normal = adopt( telsxGenericParamNameNormalize( name ) );
    return telsxGenericParamFrom( rtDictStringKey( params->params.get(), normal.get() ) );
}

RT_BOOL telsxGenericParamsHasParam( TELSX_GENERIC_PARAMS params, RT_STRING name )
{
    return bool( adopt( telsxGenericParamsParam( params, name ) ) );
}

void telsxGenericParamsSetParam( TELSX_GENERIC_PARAMS *params, TELSX_GENERIC_PARAM param )
{
    TELSX_ASSERT_HANDLE( params );
    TELSX_ASSERT( param );
    rtDictSetStringKey( TELSX_OWN( params )->params.address(), param->name.get(),
                        telsxGenericParamObj( param ) );
}

void telsxGenericParamsDelParam( TELSX_GENERIC_PARAMS *params, RT_STRING name )
{
    TELSX_ASSERT_HANDLE( params );
    TELSX_ASSERT( name );
    Ref<RT_STRING> normal = adopt( telsxGenericParamNameNormalize( name ) );
    rtDictDelStringKey( TELSX_OWN( params )->params.address(), normal.get() );
}

int64_t telsxGenericParamsParamValueType( TELSX_GENERIC_PARAMS params, RT_STRING name )
{
    Ref<TELSX_GENERIC_PARAM> param = adopt( telsxGenericParamsParam( params, name ) );
    return param ? telsxGenericParamValueType( param.get() ) : -1;
}

RT_STRING telsxGenericParamsParamValueNormalized( TELSX_GENERIC_PARAMS params, RT_STRING name )
{
    Ref<TELSX_GENERIC_PARAM> param = adopt( telsxGenericParamsParam( params, name ) );
    return param ? telsxGenericParamValueNormalized( param.get() ) : nullptr;
}

RT_STRING telsxGenericParamsParamValueNonNormalized( TELSX_GENERIC_PARAMS params, RT_STRING name )
{
    Ref<TELSX_GENERIC_PARAM> param = adopt( telsxGenericParamsParam( params, name ) );
    return param ? telsxGenericParamValueNonNormalized( param.get() ) : nullptr;
}

void telsxGenericParamsSetParamValue( TELSX_GENERIC_PARAMS *params, RT_STRING name, int64_t type,
                                      RT_STRING value )
{
    TELSX_ASSERT_HANDLE( params );
    TELSX_ASSERT( name );
    TELSX_ASSERT( value );
    telsxGenericParamsSetParam( params,
                                adopt( telsxGenericParamCreateWithValue( name, type, value ) ).get() );
}

// The text

RT_STRING telsx___GenericParamsEncode( TELSX_GENERIC_PARAMS params )
{
    TELSX_ASSERT( params );
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    appendGenericParams( text, params );
    return text.take();
}

TELSX_GENERIC_PARAMS telsx___GenericParamsTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Ref<TELSX_GENERIC_PARAMS> params = adopt( telsxGenericParamsCreate() );
    for ( Text rest = { chs, length }; rest; )
    {
        if ( !rest.take( telsx___SkipSemi ) )
            return nullptr;
        if ( !rest )
            break;
        auto param = adopt( rest.take( telsx___SkipGenericParam ).as( telsx___GenericParamTryDecode ) );
        if ( !param )
            return nullptr;
        telsxGenericParamsSetParam( params.address(), param.get() );
    }
    return params.take();
}

void telsx::appendGenericParams( Ref<RT_STRING> &text, TELSX_GENERIC_PARAMS params,
                                 std::span<const RT_STRING> without )
{
    for ( int64_t i = 0; i < rtDictLength( params->params.get() ); ++i )
    {
        auto param = adopt( telsxGenericParamsParamAt( params, i ) );
        auto isItsName = [&]( RT_STRING name ) { return rtStringEquals( name, param->name.get() ); };
        if ( std::none_of( without.begin(), without.end(), isItsName ) )
            append( text, ';', adopt( telsx___GenericParamEncode( param.get() ) ) );
    }
}

void ParamWriter::write( RT_STRING name, const Piece &value )
{
    written[count++] = name;
    appendPieces( text, { pieceOf( ';' ), pieceOf( name ), pieceOf( '=' ), value } );
}

// Functions that take a name, with the name as 8-bit and as wide characters

TELSX_DEFINE_TEXT_FORMS( TELSX_GENERIC_PARAM, GenericParamsParam, ( TELSX_GENERIC_PARAMS ), () )
TELSX_DEFINE_TEXT_FORMS( RT_BOOL, GenericParamsHasParam, ( TELSX_GENERIC_PARAMS ), () )
TELSX_DEFINE_TEXT_FORMS( void, GenericParamsDelParam, (TELSX_GENERIC_PARAMS *), () )
TELSX_DEFINE_TEXT_FORMS( int64_t, GenericParamsParamValueType, ( TELSX_GENERIC_PARAMS ), () )
TELSX_DEFINE_TEXT_FORMS( RT_STRING, GenericParamsParamValueNormalized, ( TELSX_GENERIC_PARAMS ), () )
TELSX_DEFINE_TEXT_FORMS( RT_STRING, GenericParamsParamValueNonNormalized, ( TELSX_GENERIC_PARAMS ), () )
TELSX_DEFINE_TEXT_FORMS( void, GenericParamsSetParamValue, (TELSX_GENERIC_PARAMS *), ( int64_t, RT_STRING ) )
