// Feature-Caps value (RFC 6809, 6).
#include "telsx/telsx_fc_value.h"

#include <algorithm>

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_FC_VALUE_
{
    RT_OBJECT object;
    Ref<TELSX_GENERIC_PARAMS> featureCaps; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.featureCaps ); }
};

TELSX_DEFINE_VALUE_OBJECT( FcValue, FC_VALUE, fcValue )
TELSX_DEFINE_FIELD( FcValue, fcValue, FeatureCaps, featureCaps, telsxFeatureCapsOk( featureCaps ) )

TELSX_FC_VALUE telsxFcValueCreate( void )
{
    TELSX_FC_VALUE fcValue = rt::create<TELSX_FC_VALUE_>( telsxFcValueSort() );
    fcValue->featureCaps = noGenericParams();
    return fcValue;
}

RT_STRING telsx___FcValueEncode( TELSX_FC_VALUE fcValue )
{
    TELSX_ASSERT( fcValue );
    Ref<RT_STRING> text = adopt( literal<"*">() );
    appendGenericParams( text, fcValue->featureCaps.get() );
    return text.take();
}

TELSX_FC_VALUE telsx___FcValueTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    if ( !covers( telsx___SkipFcValue, { chs, length } ) )
        return nullptr;
    auto fcValue = adopt( telsxFcValueCreate() );
    return readGenericParams( Text{ chs, length }.after( 1 ), fcValue->featureCaps ) ? fcValue.take()
                                                                                     : nullptr;
}

// The grammar of feature capabilities

template <char... CH>
static int64_t skipOneOf( const RT_CHAR *chs, int64_t length )
{
    return length && ( ( chs[0] == CH ) || ... );
}

static int64_t skipTokenNobang( const RT_CHAR *chs, int64_t length )
{
    return std::find( chs, chs + runOf<classToken>( { chs, length } ), RT_CHAR( '!' ) ) - chs;
}

static int64_t skipNumber( const RT_CHAR *chs, int64_t length )
{
    Text rest = { chs, length };
    rest.take( skipOneOf<'+', '-'> );
    if ( !rest.take( telsx___SkipDigits ) )
        return 0;
    if ( rest.take( skipOneOf<'.'> ) )
        rest.take( telsx___SkipDigits );
    return length - rest.length;
}

static int64_t skipNumericRelation( const RT_CHAR *chs, int64_t length )
{
    Text rest = { chs, length };
    bool isRange = bool( rest.take( skipNumber ) );
    if ( !isRange )
        rest.take( skipOneOf<'<', '>'> );
    return rest.take( isRange ? skipOneOf<':'> : skipOneOf<'='> ) ? length - rest.length : 0;
}

static int64_t skipTagValue( const RT_CHAR *chs, int64_t length )
{
    Text rest = { chs, length };
    rest.take( skipOneOf<'!'> );
    bool isNumeric = bool( rest.take( skipOneOf<'#'> ) );
    bool found = isNumeric ? rest.take( skipNumericRelation ) && rest.take( skipNumber )
                           : bool( rest.take( skipTokenNobang ) );
    return found ? length - rest.length : 0;
}

// A text in quotes that holds tag values, or any text in angle brackets.
static int64_t skipFeatureValue( const RT_CHAR *chs, int64_t length )
{
    int64_t quoted = telsx___SkipQuotedString( chs, length );
    if ( !quoted )
        return 0;
    Text rest = Text{ chs, quoted - 1 }.after( 1 );
    if ( rest.length > 1 && rest.chs[0] == '<' && rest.chs[rest.length - 1] == '>' )
        return quoted;
    do
    {
        if ( !rest.take( skipTagValue ) )
            return 0;
    } while ( rest.take( skipOneOf<','> ) );
    return rest ? 0 : quoted;
}

static bool isOfName( RT_CHAR ch )
{
    return isIn( ch, classAlphanum ) || ch == '!' || ch == '\'' || ch == '.' || ch == '-' || ch == '%';
}

static int64_t skipFeatureCap( const RT_CHAR *chs, int64_t length )
{
    Text rest = { chs, length };
    if ( !rest.take( skipOneOf<'+'> ) || !rest || !isIn( rest.chs[0], classAlpha ) )
        return 0;
    rest.take( std::find_if_not( rest.chs, rest.chs + rest.length, isOfName ) - rest.chs );
    if ( rest.take( telsx___SkipEqual ) && !rest.take( skipFeatureValue ) )
        return 0;
    return length - rest.length;
}

static int64_t skipFeatureCaps( Text text )
{
    Text rest = text;
    for ( Text next = rest; next.take( telsx___SkipSemi ) && next.take( skipFeatureCap ); )
        rest = next;
    return text.length - rest.length;
}

RT_BOOL telsxFeatureCapsOk( TELSX_GENERIC_PARAMS featureCaps )
{
    TELSX_ASSERT( featureCaps );
    Ref<RT_STRING> text = adopt( telsx___GenericParamsEncode( featureCaps ) );
    return skipFeatureCaps( textOf( text ) ) == rtStringLength( text.get() );
}

int64_t telsx___SkipFcValue( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    bool isStar = skipOneOf<'*'>( chs, length );
    return isStar ? 1 + skipFeatureCaps( Text{ chs, length }.after( 1 ) ) : 0;
}
