// Generic parameters and sets of them, as callers make and change them. What they read and write is in values_test.cpp.
#include "telsx/object_tables.hpp"

using namespace support;

using Param = Ref<TELSX_GENERIC_PARAM>;
using Params = Ref<TELSX_GENERIC_PARAMS>;

enum
{
    token = TELSX_GENERIC_PARAM_VALUE_TYPE_TOKEN,
    host = TELSX_GENERIC_PARAM_VALUE_TYPE_HOST,
    quotable = TELSX_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING,
};

static Param param( std::string_view text )
{
    return adopt( applied( telsx___GenericParamTryDecode, text ) );
}
static Params params( std::string_view text )
{
    return adopt( applied( telsx___GenericParamsTryDecode, text ) );
}
static std::string text( const Param &param ) { return utf8( telsxGenericParamToString( param.get() ) ); }
static std::string text( const Params &params ) { return utf8( telsxGenericParamsToString( params.get() ) ); }

TEST( GenericParams, ValuesOfAParameter )
{
    struct
    {
        int64_t type;
        const char *value, *normal, *written;
    } cases[] = {
        { token, "B.c", "b.c", "a=B.c" },
        { host, "B.Example", "B.Example", "a=B.Example" },
        { host, "Bücher.example", "Bücher.example", "a=xn--bcher-kva.example" },
        { host, "[::A]", "[::A]", "a=[::A]" },
        { quotable, "", "", "a=\"\"" },
        { quotable, "B  \"\t\\", "B  \"\t\\", "a=\"B \\ \\\"\\\t\\\\\"" },
    };
    for ( auto &[type, value, normal, written] : cases )
    {
        SCOPED_TRACE( value );
        Ref<RT_STRING> string = str( value );
        EXPECT_TRUE( telsxGenericParamValueOk( type, string.get() ) );
        Param made = adopt( telsxGenericParamCreateWithValueCstr( "A", -1, type, string.get() ) );
        EXPECT_EQ( "a", utf8( telsxGenericParamName( made.get() ) ) );
        EXPECT_TRUE( telsxGenericParamHasValue( made.get() ) );
        EXPECT_EQ( type, telsxGenericParamValueType( made.get() ) );
        EXPECT_EQ( value, utf8( telsxGenericParamValueNonNormalized( made.get() ) ) );
        EXPECT_EQ( normal, utf8( telsxGenericParamValueNormalized( made.get() ) ) );
        EXPECT_EQ( written, text( made ) );

        // The normal form compares equal, and another holder keeps the value as it was set.
        Param normalized = made;
        telsxGenericParamNormalizeValue( normalized.address() );
        EXPECT_EQ( normal, utf8( telsxGenericParamValueNonNormalized( normalized.get() ) ) );
        EXPECT_EQ( value, utf8( telsxGenericParamValueNonNormalized( made.get() ) ) );
        EXPECT_EQ( made, normalized );
    }
    for ( auto [type, value] :
          { std::pair( token, "" ), std::pair( token, "a b" ), std::pair( token, "[::1]" ),
            std::pair( host, "" ), std::pair( host, "a_b" ), std::pair( host, "::1" ),
            std::pair( quotable, "\n" ), std::pair( quotable, "a\rb" ) } )
        EXPECT_FALSE( telsxGenericParamValueOk( type, str( value ).get() ) ) << type << " " << value;
}

// Decoded values: an address in dots and a host name are tokens.
TEST( GenericParams, TypesOfDecodedValues )
{
    for ( auto [type, wire] :
          { std::pair( -1, "a" ), { token, "a=1.2.3.4" }, { host, "a=[::A]" }, { quotable, "a=\"B\"" } } )
    {
        EXPECT_EQ( type, telsxGenericParamValueType( param( wire ).get() ) ) << wire;
        EXPECT_EQ( type != -1, bool( telsxGenericParamHasValue( param( wire ).get() ) ) ) << wire;
    }
}

TEST( GenericParams, ChangesOfAParameterAreForOneHolder )
{
    Param original = param( "a=B" ), changed = original;
    telsxGenericParamSetNameWcstr( changed.address(), L"CCC", 2 );
    EXPECT_EQ( "cc=B", text( changed ) );
    telsxGenericParamSetValue( changed.address(), quotable, str( "x" ).get() );
    EXPECT_EQ( "cc=\"x\"", text( changed ) );
    for ( int i = 0; i < 2; ++i )
    {
        telsxGenericParamDelValue( changed.address() );
        EXPECT_EQ( "cc", text( changed ) );
        EXPECT_EQ( -1, telsxGenericParamValueType( changed.get() ) );
        EXPECT_EQ( nullptr, telsxGenericParamValueNormalized( changed.get() ) );
    }
    EXPECT_EQ( "a=B", text( original ) );

    // Without a value there is nothing to normalise, so no copy is made.
    Param held = changed;
    telsxGenericParamNormalizeValue( changed.address() );
    EXPECT_EQ( held.get(), changed.get() );
    telsxGenericParamSetNameCstr( changed.address(), "D", -1 );
    EXPECT_EQ( "cc", text( held ) );
}

TEST( GenericParams, AreLookedUpInAnyCase )
{
    Params set = params( ";Q=B;x;y=\"\"" );
    Ref<RT_STRING> name = str( "Q" );
    EXPECT_EQ( 3, telsxGenericParamsLength( set.get() ) );
    EXPECT_EQ( "q=B", text( adopt( telsxGenericParamsParam( set.get(), name.get() ) ) ) );
    EXPECT_EQ( "q=B", text( adopt( telsxGenericParamsParamCstr( set.get(), "q;", 1 ) ) ) );
    EXPECT_EQ( token, telsxGenericParamsParamValueTypeWcstr( set.get(), L"Q", -1 ) );
    EXPECT_EQ( "b", utf8( telsxGenericParamsParamValueNormalized( set.get(), name.get() ) ) );
    EXPECT_EQ( "B", utf8( telsxGenericParamsParamValueNonNormalizedCstr( set.get(), "Q", -1 ) ) );
    EXPECT_TRUE( telsxGenericParamsHasParamWcstr( set.get(), L"q", -1 ) );

    // Only Has distinguishes a parameter without a value from a missing one.
    for ( auto [absent, isThere] : { std::pair( "X", true ), std::pair( "z", false ) } )
    {
        EXPECT_EQ( isThere, bool( telsxGenericParamsHasParamCstr( set.get(), absent, -1 ) ) );
        EXPECT_EQ( isThere, bool( adopt( telsxGenericParamsParamCstr( set.get(), absent, -1 ) ) ) );
        EXPECT_EQ( -1, telsxGenericParamsParamValueTypeCstr( set.get(), absent, -1 ) );
        EXPECT_EQ( nullptr, telsxGenericParamsParamValueNormalizedCstr( set.get(), absent, -1 ) );
        EXPECT_EQ( nullptr, telsxGenericParamsParamValueNonNormalizedCstr( set.get(), absent, -1 ) );
    }

    EXPECT_EQ( "q=B, x, y=\"\"", shown( telsxGenericParamsParamsVector( set.get() ) ) );
    EXPECT_EQ( "y=\"\"", text( adopt( telsxGenericParamsParamAt( set.get(), 2 ) ) ) );
    EXPECT_EQ( quotable, telsxGenericParamsParamValueTypeAt( set.get(), 2 ) );
    EXPECT_EQ( "b", utf8( telsxGenericParamsParamValueNormalizedAt( set.get(), 0 ) ) );
    EXPECT_EQ( "B", utf8( telsxGenericParamsParamValueNonNormalizedAt( set.get(), 0 ) ) );
    EXPECT_EQ( nullptr, telsxGenericParamsParamValueNormalizedAt( set.get(), 1 ) );
}

TEST( GenericParams, AreSetInThreeForms )
{
    EXPECT_EQ( params( ";a;b=C" ), params( ";B=c;A" ) );
    EXPECT_NE( params( ";a;b=C" ), params( ";a;b=\"C\"" ) );
    Params set = params( ";a;b=1" );
    telsxGenericParamsDelParamCstr( set.address(), "B", -1 );
    telsxGenericParamsDelParamWcstr( set.address(), L"none", -1 );
    telsxGenericParamsSetParamValueCstr( set.address(), "C", -1, quotable, str( "d e" ).get() );
    telsxGenericParamsSetParamValueWcstr( set.address(), L"A", -1, token, str( "F" ).get() );
    EXPECT_EQ( ";a=F;c=\"d e\"", text( set ) );
}

TEST( GenericParams, AreSetFromAVector )
{
    Ref<RT_VECTOR> vector = adopt( rtVectorCreate() );
    for ( const char *wire : { "b", "a=1", "B=2" } )
        rtVectorAppend( vector.address(), telsxGenericParamObj( param( wire ).get() ) );
    Params original = params( ";a;c" ), set = original;
    telsxGenericParamsSetParamsVector( set.address(), vector.get() );
    EXPECT_EQ( ";b=2;a=1", text( set ) );
    EXPECT_EQ( ";a;c", text( original ) );

    telsxGenericParamsSetParamsVector( set.address(), adopt( rtVectorCreate() ).get() );
    EXPECT_EQ( "", text( set ) );
    EXPECT_EQ( params( "" ), set );

    rtVectorAppendString( vector.address(), str( "c" ).get() );
    EXPECT_DEATH( telsxGenericParamsSetParamsVector( set.address(), vector.get() ), "telsx_generic_params" );
}

TEST( GenericParams, AreNewAlsoWhenEmpty )
{
    auto expectNew = []( Params made )
    {
        TELSX_GENERIC_PARAMS held = made.get();
        EXPECT_EQ( 1, telsxGenericParamsObj( held )->count );
        telsxGenericParamsSetParam( made.address(), param( "a" ).get() );
        EXPECT_EQ( held, made.get() );
    };
    expectNew( adopt( telsxGenericParamsCreate() ) );
    expectNew( params( "" ) );
    expectNew( params( ";" ) );
}

TEST( GenericParams, AbortForBrokenContracts )
{
    Param parameter = param( "a=b" ), noParam;
    Params set = params( ";a" ), noSet;
    Ref<RT_STRING> good = str( "a" ), bad = str( "a b" );
    EXPECT_ABORT( telsxGenericParamSetName( parameter.address(), bad.get() ),
                  "telsxGenericParamNameOk( name )" );
    EXPECT_ABORT( telsxGenericParamNameNormalize( bad.get() ), "telsxTokenOk( token )" );
    EXPECT_ABORT( telsxGenericParamNormalizeValue( noParam.address() ), "*param" );
    EXPECT_ABORT( telsxGenericParamSetValue( parameter.address(), token, bad.get() ),
                  "telsxGenericParamValueOk( type, value )" );
    EXPECT_ABORT( telsxGenericParamCreateWithValue( good.get(), host, bad.get() ),
                  "telsxGenericParamValueOk( type, value )" );
    const char *typeOk = "TELSX_GENERIC_PARAM_VALUE_TYPE_OK( type )";
    EXPECT_ABORT( telsxGenericParamValueOk( -1, good.get() ), typeOk );
    EXPECT_ABORT( telsxGenericParamValueNormalize( 3, good.get() ), typeOk );
    EXPECT_ABORT( telsxGenericParamsSetParamValue( set.address(), good.get(), 3, good.get() ), typeOk );
    EXPECT_ABORT( telsxGenericParamValueNormalize( quotable, nullptr ), "value" );

    EXPECT_ABORT( telsxGenericParamsParam( set.get(), bad.get() ), "telsxTokenOk( token )" );
    EXPECT_ABORT( telsxGenericParamsDelParam( noSet.address(), good.get() ), "*params" );
    EXPECT_ABORT( telsxGenericParamsSetParam( set.address(), nullptr ), "param" );
    EXPECT_ABORT( telsxGenericParamsSetParamsVector( noSet.address(), nullptr ), "*params" );
    EXPECT_DEATH( telsxGenericParamsParamAt( set.get(), 1 ), "" );
}
