// Tel IRI (RFC 3966).
#include "telsx/telsx_tel_iri.h"

#include <algorithm>
#include <vector>

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_host.hpp"
#include "telsx/telsx_iri_params.hpp"
#include "telsx/telsx_sip_iri.hpp"

using namespace telsx;

struct TELSX_TEL_IRI_
{
    RT_OBJECT object;
    Ref<RT_STRING> number; // never null
    Ref<RT_STRING> extension;
    Ref<RT_STRING> isub;
    Ref<RT_STRING> phoneContext;
    Ref<RT_DICT> params; // the others, as in telsx_iri_params.hpp, never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.number, self.extension, self.isub, self.phoneContext, self.params );
    }
};

TELSX_DEFINE_OBJECT( TelIri, TEL_IRI, telsx___TelIriFreeFunc, telsx___TelIriCompareFunc,
                     telsx___TelIriToStringFunc )
TELSX_DEFINE_FREE_FUNC( TelIri, telIri )
TELSX_DEFINE_COMPARE_FUNC( TelIri, telIri )
TELSX_DEFINE_TO_STRING_FUNC( TelIri, telIri )
TELSX_DEFINE_FIELD( TelIri, telIri, Number, number, telsxTelIriNumberOk( number ) )
TELSX_DEFINE_FIELD( TelIri, telIri, Extension, extension, telsxTelIriExtensionOk( extension ) )
TELSX_DEFINE_OPTION( TelIri, telIri, Extension, extension )
TELSX_DEFINE_FIELD( TelIri, telIri, Isub, isub, telsxIriNameOk( isub ) )
TELSX_DEFINE_OPTION( TelIri, telIri, Isub, isub )
TELSX_DEFINE_FIELD( TelIri, telIri, PhoneContext, phoneContext, telsxTelIriPhoneContextOk( phoneContext ) )
TELSX_DEFINE_OPTION( TelIri, telIri, PhoneContext, phoneContext )
TELSX_DEFINE_IRI_PARAMS( TelIri, telIri )

// Numbers

static bool isSeparator( RT_CHAR ch ) { return ch == '-' || ch == '.' || ch == '(' || ch == ')'; }
static bool isPhoneDigit( RT_CHAR ch ) { return isIn( ch, classDigit ); }
static bool isLocalDigit( RT_CHAR ch ) { return isIn( ch, classHexdig ) || ch == '*' || ch == '#'; }

// Whether the text is digits and visual separators, and not only separators.
template <class IS_DIGIT>
static bool areDigits( Text text, IS_DIGIT isDigit )
{
    const RT_CHAR *end = text.chs + text.length;
    return std::any_of( text.chs, end, isDigit )
           && std::all_of( text.chs, end, [&]( RT_CHAR ch ) { return isDigit( ch ) || isSeparator( ch ); } );
}

static bool isGlobal( Text number ) { return number && number.chs[0] == '+'; }
static bool isGlobalNumber( Text text )
{
    return isGlobal( text ) && areDigits( text.after( 1 ), isPhoneDigit );
}

RT_BOOL telsxTelIriNumberOk( RT_STRING number )
{
    TELSX_ASSERT( number );
    return isGlobalNumber( textOf( number ) ) || areDigits( textOf( number ), isLocalDigit );
}

RT_BOOL telsxTelIriPhoneContextOk( RT_STRING phoneContext )
{
    TELSX_ASSERT( phoneContext );
    return isGlobalNumber( textOf( phoneContext ) ) || covers( telsx___SkipHostname, phoneContext );
}

RT_BOOL telsxTelIriExtensionOk( RT_STRING extension )
{
    TELSX_ASSERT( extension );
    return areDigits( textOf( extension ), isPhoneDigit );
}

static Ref<RT_STRING> withoutSeparators( const Ref<RT_STRING> &number )
{
    Ref<RT_STRING> digits = textWithRoom( rtStringLength( number.get() ) );
    for ( Text rest = textOf( number ); rest; )
        if ( RT_CHAR ch = rest.take( 1 ).chs[0]; !isSeparator( ch ) )
            rtStringAppendChar( digits.address(), ch );
    return digits;
}

RT_STRING telsxTelIriDigits( TELSX_TEL_IRI telIri )
{
    TELSX_ASSERT( telIri );
    return withoutSeparators( telIri->number ).take();
}

RT_BOOL telsxTelIriIsGlobal( TELSX_TEL_IRI telIri )
{
    TELSX_ASSERT( telIri );
    return isGlobal( textOf( telIri->number ) );
}

static Ref<TELSX_TEL_IRI> create( Ref<RT_STRING> number )
{
    auto telIri = adopt( rt::create<TELSX_TEL_IRI_>( telsxTelIriSort() ) );
    telIri->number = std::move( number );
    telIri->params = adopt( rtDictCreate() );
    return telIri;
}

TELSX_TEL_IRI telsxTelIriCreate( RT_STRING number )
{
    TELSX_ASSERT_OK( telsxTelIriNumberOk, number );
    return create( share( number ) ).take();
}

// Equivalence

static Ref<RT_STRING> comparedContext( const Ref<RT_STRING> &context )
{
    return context && isGlobal( textOf( context ) ) ? withoutSeparators( context ) : context;
}

RT_BOOL telsxTelIriEquivalent( TELSX_TEL_IRI telIriA, TELSX_TEL_IRI telIriB )
{
    TELSX_ASSERT( telIriA );
    TELSX_ASSERT( telIriB );
    auto compared = []( TELSX_TEL_IRI telIri )
    {
        auto inLowerCase = []( const Ref<RT_STRING> &text )
        { return text ? asciiLowerCase( text ) : Ref<RT_STRING>(); };
        return std::tuple( asciiLowerCase( withoutSeparators( telIri->number ) ),
                           telIri->extension ? withoutSeparators( telIri->extension ) : telIri->extension,
                           inLowerCase( telIri->isub ),
                           inLowerCase( comparedContext( telIri->phoneContext ) ),
                           comparedIriParams( telIri->params ) );
    };
    return compared( telIriA ) == compared( telIriB );
}

// Text

static bool hides( TELSX_TEL_IRI telIri, const Ref<RT_STRING> &name )
{
    return isHidden( name, { { literal<"ext">(), rt::present( telIri->extension ) },
                             { literal<"isub">(), rt::present( telIri->isub ) },
                             { literal<"phone-context">(), rt::present( telIri->phoneContext ) } } );
}

static std::vector<IriPair> sortedParams( TELSX_TEL_IRI telIri )
{
    std::vector<IriPair> sorted;
    for ( int64_t i = 0; i < rtDictLength( telIri->params.get() ); ++i )
        if ( IriPair param = iriParamAt( telIri->params, i ); !hides( telIri, param.name ) )
            sorted.push_back( std::move( param ) );
    std::ranges::sort( sorted, {}, &IriPair::name );
    return sorted;
}

// Appends what follows the scheme. Each value is changed by the function, and all but its plain characters are escaped.
template <class CHANGE>
static void appendSubscriber( Ref<RT_STRING> &text, TELSX_TEL_IRI telIri, const rt::CharSet &plain,
                              CHANGE change )
{
    auto value = [&]( const Ref<RT_STRING> &of ) { return escaped( textOf( change( of ) ), plain ); };
    append( text, value( telIri->number ) );
    if ( telIri->isub )
        append( text, ";isub=", value( telIri->isub ) );
    if ( telIri->extension )
        append( text, ";ext=", value( telIri->extension ) );
    if ( telIri->phoneContext )
        append( text, ";phone-context=", value( telIri->phoneContext ) );
    for ( const IriPair &param : sortedParams( telIri ) )
    {
        append( text, ';', escaped( textOf( param.name ), plain ) );
        if ( Ref<RT_STRING> rest = valueOf( param.rest ) )
            append( text, '=', value( rest ) );
    }
}

RT_STRING telsx___TelIriEncode( TELSX_TEL_IRI telIri )
{
    TELSX_ASSERT( telIri );
    Ref<RT_STRING> text = textWithRoom( 64 );
    append( text, "tel:" );
    appendSubscriber( text, telIri, paramChars, []( const Ref<RT_STRING> &value ) { return value; } );
    return text.take();
}

RT_STRING telsxTelIriEncode( TELSX_TEL_IRI telIri ) { return telsx___TelIriEncode( telIri ); }

// Stores the parameter in its field; false if it has none, or the field does not take the value.
static bool takeField( TELSX_TEL_IRI telIri, RT_STRING name, const Ref<RT_STRING> &value )
{
    Text text = textOf( name );
    if ( !value )
        return false;
    if ( equals<"ext">( text ) && telsxTelIriExtensionOk( value.get() ) )
        return telIri->extension = value, true;
    if ( equals<"isub">( text ) && rtStringLength( value.get() ) > 0 )
        return telIri->isub = value, true;
    if ( equals<"phone-context">( text ) && telsxTelIriPhoneContextOk( value.get() ) )
        return telIri->phoneContext = value, true;
    return false;
}

// A subaddress may hold any character of a URI.
static constexpr rt::CharSet acceptedInValue = with( charSet<classReserved | classUnreserved>, "[]" );

// Decodes what follows the scheme; null for bad text. In a value an escape and its character always mean the same.
static Ref<TELSX_TEL_IRI> decodeSubscriber( Text rest )
{
    Ref<RT_STRING> number = resolved( rest.take( until( rest, ';' ).length ) );
    if ( !telsxTelIriNumberOk( number.get() ) )
        return {};
    Ref<TELSX_TEL_IRI> telIri = create( std::move( number ) );
    while ( rest )
    {
        rest.take( 1 );
        IriPair param = toIriPair( rest.take( until( rest, ';' ).length ), paramChars, acceptedInValue );
        if ( !param.name )
            return {};
        Ref<RT_STRING> value = valueOf( param.rest );
        if ( takeField( telIri.get(), param.name.get(), value ) )
            rtDictDelStringKey( telIri->params.address(), param.name.get() );
        else if ( !hides( telIri.get(), param.name ) )
            setIriParam( telIri->params, param.name, restOf( value.get(), paramChars ) );
    }
    return telIri;
}

TELSX_TEL_IRI telsx___TelIriTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text text = { chs, length };
    return beginsInAnyCase<"tel:">( text ) ? decodeSubscriber( text.after( 4 ) ).take() : nullptr;
}

TELSX_TEL_IRI telsxTelIriTryDecode( RT_STRING iri )
{
    TELSX_ASSERT( iri );
    return textOf( iri ).as( telsx___TelIriTryDecode );
}

// Numbers in SIP addresses

// The plain characters of a user without those that separate parameters.
static constexpr rt::CharSet plainInUser = with( charSet<classUnreserved>, "&+$/" );

TELSX_SIP_IRI telsxSipIriTryCreateFromTelIri( TELSX_TEL_IRI telIri, RT_STRING host )
{
    TELSX_ASSERT( telIri );
    Ref<TELSX_SIP_IRI> sipIri = adopt( telsxSipIriCreate( host ) );
    if ( !isGlobal( textOf( telIri->number ) ) && !telIri->phoneContext )
        return nullptr;
    sipIri->user = textWithRoom( 64 );
    appendSubscriber( sipIri->user, telIri, plainInUser, asciiLowerCase );
    sipIri->userParam = share( literal<"phone">() );
    return sipIri.take();
}

TELSX_TEL_IRI telsxTelIriTryCreateFromSipIri( TELSX_SIP_IRI sipIri )
{
    TELSX_ASSERT( sipIri );
    bool isPhone = sipIri->user && sipIri->userParam && equals<"phone">( textOf( sipIri->userParam ) );
    return isPhone ? decodeSubscriber( textOf( sipIri->user ) ).take() : nullptr;
}
