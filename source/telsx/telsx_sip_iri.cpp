// SIP IRI (RFC 3261, 19.1).
#include "telsx/telsx_sip_iri.hpp"

#include <algorithm>
#include <vector>

#include "net/net.h"
#include "telsx/telsx_host.hpp"
#include "telsx/telsx_iri_params.hpp"
#include "telsx/telsx_method.h"
#include "telsx/telsx_port.h"
#include "telsx/telsx_token.h"
#include "telsx/telsx_transport.hpp"
#include "telsx/telsx_ttl.h"

using namespace telsx;

// The one form of a host, or null. Escapes of characters that no host holds remain.
static Ref<RT_STRING> plainHost( Text text )
{
    if ( covers( telsx___SkipHost, text ) && !hasEscapes( text ) )
        return hostOf( text );
    Ref<RT_STRING> host = resolved( text );
    if ( hasEscapes( textOf( host ) ) || !telsxHostOk( host.get() ) )
        host = text.copy();
    return telsxHostOk( host.get() ) ? hostOf( textOf( adopt( telsx___HostEncode( host.get() ) ) ) )
                                     : Ref<RT_STRING>();
}
static RT_STRING normalizeHost( RT_STRING host ) { return plainHost( textOf( host ) ).take(); }

TELSX_DEFINE_OBJECT( SipIri, SIP_IRI, telsx___SipIriFreeFunc, telsx___SipIriCompareFunc,
                     telsx___SipIriToStringFunc )
TELSX_DEFINE_FREE_FUNC( SipIri, sipIri )
TELSX_DEFINE_COMPARE_FUNC( SipIri, sipIri )
TELSX_DEFINE_TO_STRING_FUNC( SipIri, sipIri )
TELSX_DEFINE_GETTER( SipIri, sipIri, Secure, secure )
TELSX_DEFINE_ESCAPED_FIELD( SipIri, sipIri, User, user, telsxIriNameOk( user ), userChars )
TELSX_DEFINE_OPTION( SipIri, sipIri, User, user )
TELSX_DEFINE_ESCAPED_FIELD( SipIri, sipIri, Password, password, telsxIriTextOk( password ), passwordChars )
TELSX_DEFINE_OPTION( SipIri, sipIri, Password, password )
TELSX_DEFINE_NORMAL_FIELD( SipIri, sipIri, Host, host, telsxHostOk( host ), normalizeHost )
TELSX_DEFINE_FIELD( SipIri, sipIri, Port, port, telsxPortOk( port ) )
TELSX_DEFINE_OPTION( SipIri, sipIri, Port, port )
TELSX_DEFINE_NORMAL_FIELD( SipIri, sipIri, Transport, transport, telsxTransportOk( transport ),
                           telsxTransportNormalize )
TELSX_DEFINE_OPTION( SipIri, sipIri, Transport, transport )
TELSX_DEFINE_NORMAL_FIELD( SipIri, sipIri, UserParam, userParam, telsxTokenOk( userParam ),
                           telsxTokenNormalize )
TELSX_DEFINE_OPTION( SipIri, sipIri, UserParam, userParam )
TELSX_DEFINE_FIELD( SipIri, sipIri, Method, method, telsxMethodOk( method ) )
TELSX_DEFINE_OPTION( SipIri, sipIri, Method, method )
TELSX_DEFINE_FIELD( SipIri, sipIri, Ttl, ttl, telsxTtlOk( ttl ) )
TELSX_DEFINE_OPTION( SipIri, sipIri, Ttl, ttl )
TELSX_DEFINE_NORMAL_FIELD( SipIri, sipIri, Maddr, maddr, telsxHostOk( maddr ), normalizeHost )
TELSX_DEFINE_OPTION( SipIri, sipIri, Maddr, maddr )
TELSX_DEFINE_IRI_PARAMS( SipIri, sipIri )

void telsxSipIriSetSecure( TELSX_SIP_IRI *sipIri, RT_BOOL secure )
{
    TELSX_ASSERT_HANDLE( sipIri );
    TELSX_OWN( sipIri )->secure = secure != 0;
}

RT_BOOL telsxSipIriLr( TELSX_SIP_IRI sipIri )
{
    TELSX_ASSERT( sipIri );
    return rt::present( sipIri->lr );
}

void telsxSipIriSetLr( TELSX_SIP_IRI *sipIri, RT_BOOL lr )
{
    TELSX_ASSERT_HANDLE( sipIri );
    TELSX_OWN( sipIri )->lr = adopt( lr ? literal<"">() : nullptr );
}

static Ref<TELSX_SIP_IRI> create( Ref<RT_STRING> host )
{
    auto sipIri = adopt( rt::create<TELSX_SIP_IRI_>( telsxSipIriSort() ) );
    sipIri->host = std::move( host );
    sipIri->params = adopt( rtDictCreate() );
    sipIri->headers = adopt( rtVectorCreate() );
    return sipIri;
}

TELSX_SIP_IRI telsxSipIriCreate( RT_STRING host )
{
    TELSX_ASSERT_OK( telsxHostOk, host );
    return create( plainHost( textOf( host ) ) ).take();
}

// Headers

static int64_t countHeaders( TELSX_SIP_IRI sipIri ) { return rtVectorLength( sipIri->headers.get() ) / 2; }

static IriPair headerAt( TELSX_SIP_IRI sipIri, int64_t index )
{
    TELSX_ASSERT( index >= 0 && index < countHeaders( sipIri ) );
    return { adopt( rtStringFrom( rtVectorObjAt( sipIri->headers.get(), 2 * index ) ) ),
             adopt( rtStringFrom( rtVectorObjAt( sipIri->headers.get(), 2 * index + 1 ) ) ) };
}

static void appendHeader( Ref<RT_VECTOR> &headers, const IriPair &pair )
{
    rtVectorAppendString( headers.address(), pair.name.get() );
    rtVectorAppendString( headers.address(), pair.rest.get() );
}

// The index of the first header with the name, or -1.
static int64_t findHeader( TELSX_SIP_IRI sipIri, const Ref<RT_STRING> &key )
{
    int64_t length = countHeaders( sipIri );
    for ( int64_t i = 0; i < length; ++i )
        if ( headerAt( sipIri, i ).name == key )
            return i;
    return -1;
}

// Replaces all headers with the name by one, or removes them if the rest is null.
static void replaceHeaders( TELSX_SIP_IRI sipIri, const Ref<RT_STRING> &key, Ref<RT_STRING> rest )
{
    Ref<RT_VECTOR> headers = adopt( rtVectorCreate() );
    for ( int64_t i = 0; i < countHeaders( sipIri ); ++i )
    {
        IriPair header = headerAt( sipIri, i );
        bool isNamed = header.name == key;
        if ( isNamed )
            header.rest = std::exchange( rest, {} );
        if ( header.rest )
            appendHeader( headers, header );
    }
    if ( rest )
        appendHeader( headers, { key, rest } );
    sipIri->headers = std::move( headers );
}

int64_t telsxSipIriHeadersLength( TELSX_SIP_IRI sipIri )
{
    TELSX_ASSERT( sipIri );
    return countHeaders( sipIri );
}

RT_STRING telsxSipIriHeaderNameAt( TELSX_SIP_IRI sipIri, int64_t index )
{
    TELSX_ASSERT( sipIri );
    return headerAt( sipIri, index ).name.take();
}

RT_STRING telsxSipIriHeaderValueAt( TELSX_SIP_IRI sipIri, int64_t index )
{
    TELSX_ASSERT( sipIri );
    return valueOf( headerAt( sipIri, index ).rest ).take();
}

void telsxSipIriSetHeaderValueAt( TELSX_SIP_IRI *sipIri, int64_t index, RT_STRING value )
{
    TELSX_ASSERT_HANDLE( sipIri );
    TELSX_ASSERT( index >= 0 && index < countHeaders( *sipIri ) );
    TELSX_ASSERT( !value || telsxIriTextOk( value ) );
    Ref<RT_STRING> rest = restOf( value, headerChars );
    rtVectorSetStringAt( TELSX_OWN( sipIri )->headers.address(), 2 * index + 1, rest.get() );
}

void telsxSipIriDelHeaderAt( TELSX_SIP_IRI *sipIri, int64_t index )
{
    TELSX_ASSERT_HANDLE( sipIri );
    TELSX_ASSERT( index >= 0 && index < countHeaders( *sipIri ) );
    RT_VECTOR *headers = TELSX_OWN( sipIri )->headers.address();
    rtVectorDelAt( headers, 2 * index + 1 );
    rtVectorDelAt( headers, 2 * index );
}

void telsxSipIriClearHeaders( TELSX_SIP_IRI *sipIri )
{
    TELSX_ASSERT_HANDLE( sipIri );
    rtVectorClear( TELSX_OWN( sipIri )->headers.address() );
}

RT_BOOL telsxSipIriHasHeader( TELSX_SIP_IRI sipIri, RT_STRING name )
{
    TELSX_ASSERT( sipIri );
    return findHeader( sipIri, iriKey( name ) ) != -1;
}

RT_STRING telsxSipIriHeaderValue( TELSX_SIP_IRI sipIri, RT_STRING name )
{
    TELSX_ASSERT( sipIri );
    int64_t index = findHeader( sipIri, iriKey( name ) );
    return index == -1 ? nullptr : valueOf( headerAt( sipIri, index ).rest ).take();
}

void telsxSipIriSetHeader( TELSX_SIP_IRI *sipIri, RT_STRING name, RT_STRING value )
{
    TELSX_ASSERT_HANDLE( sipIri );
    TELSX_ASSERT( !value || telsxIriTextOk( value ) );
    Ref<RT_STRING> key = iriKey( name );
    replaceHeaders( TELSX_OWN( sipIri ), key, restOf( value, headerChars ) );
}

void telsxSipIriAppendHeader( TELSX_SIP_IRI *sipIri, RT_STRING name, RT_STRING value )
{
    TELSX_ASSERT_HANDLE( sipIri );
    TELSX_ASSERT( !value || telsxIriTextOk( value ) );
    Ref<RT_STRING> key = iriKey( name );
    appendHeader( TELSX_OWN( sipIri )->headers, { key, restOf( value, headerChars ) } );
}

void telsxSipIriDelHeader( TELSX_SIP_IRI *sipIri, RT_STRING name )
{
    TELSX_ASSERT_HANDLE( sipIri );
    Ref<RT_STRING> key = iriKey( name );
    replaceHeaders( TELSX_OWN( sipIri ), key, {} );
}

TELSX_DEFINE_IRI_NAME_FORMS( SipIri, Header )
TELSX_DEFINE_TEXT_FORMS( void, SipIriAppendHeader, (TELSX_SIP_IRI *), ( RT_STRING ) )

// Equivalence

// The host in the form for comparison. An IPv6 address can be written in many ways.
static Ref<RT_STRING> comparedHost( const Ref<RT_STRING> &host )
{
    Text text = textOf( host );
    if ( text.chs[0] != '[' )
        return asciiLowerCase( host );
    auto address = adopt( netAddressTryCreateFromChars( text.chs + 1, text.length - 2 ) );
    return joined( '[', adopt( netAddressToStringShrink( address.get() ) ), ']' );
}

// All parameters, including those in fields, in the form for comparison.
static Ref<RT_DICT> comparedParams( TELSX_SIP_IRI sipIri )
{
    Ref<RT_DICT> params = comparedIriParams( sipIri->params );
    auto set = [&]( RT_STRING name, const Ref<RT_STRING> &rest )
    { setIriParam( params, share( name ), rest ); };
    if ( sipIri->transport )
        set( literal<"transport">(), joined( '=', sipIri->transport ) );
    if ( sipIri->userParam )
        set( literal<"user">(), joined( '=', sipIri->userParam ) );
    if ( sipIri->method )
        set( literal<"method">(), joined( '=', sipIri->method ) );
    if ( rt::present( sipIri->ttl ) )
        set( literal<"ttl">(), joined( '=', Decimal( sipIri->ttl ) ) );
    if ( sipIri->maddr )
        set( literal<"maddr">(), joined( '=', comparedHost( sipIri->maddr ) ) );
    if ( sipIri->lr )
        set( literal<"lr">(), asciiLowerCase( sipIri->lr ) );
    return params;
}

// Whether each parameter of the first is the same in the other, or is absent there and may be (RFC 3261, 19.1.4).
static bool paramsMatch( const Ref<RT_DICT> &paramsA, const Ref<RT_DICT> &paramsB )
{
    for ( int64_t i = 0; i < rtDictLength( paramsA.get() ); ++i )
    {
        IriPair param = iriParamAt( paramsA, i );
        Ref<RT_STRING> rest = iriParamRest( paramsB, param.name );
        bool mustBeInBoth = findWord<"transport", "user", "method", "ttl", "maddr">( textOf( param.name ) );
        if ( rest ? rest != param.rest : mustBeInBoth )
            return false;
    }
    return true;
}

static std::vector<Ref<RT_STRING>> sortedHeaders( TELSX_SIP_IRI sipIri )
{
    std::vector<Ref<RT_STRING>> sorted;
    for ( int64_t i = 0; i < countHeaders( sipIri ); ++i )
    {
        IriPair header = headerAt( sipIri, i );
        sorted.push_back( joined( escaped( textOf( header.name ), headerChars ), header.rest ) );
    }
    std::sort( sorted.begin(), sorted.end() );
    return sorted;
}

RT_BOOL telsxSipIriEquivalent( TELSX_SIP_IRI sipIriA, TELSX_SIP_IRI sipIriB )
{
    TELSX_ASSERT( sipIriA );
    TELSX_ASSERT( sipIriB );
    auto exact = []( TELSX_SIP_IRI sipIri )
    { return std::tie( sipIri->secure, sipIri->user, sipIri->password, sipIri->port ); };
    if ( exact( sipIriA ) != exact( sipIriB )
         || comparedHost( sipIriA->host ) != comparedHost( sipIriB->host )
         || sortedHeaders( sipIriA ) != sortedHeaders( sipIriB ) )
        return 0;
    Ref<RT_DICT> paramsA = comparedParams( sipIriA ), paramsB = comparedParams( sipIriB );
    return paramsMatch( paramsA, paramsB ) && paramsMatch( paramsB, paramsA );
}

TELSX_SIP_IRI telsxSipIriAddressOfRecord( TELSX_SIP_IRI sipIri )
{
    TELSX_ASSERT( sipIri );
    auto record = create( comparedHost( sipIri->host ) );
    record->secure = sipIri->secure;
    record->port = sipIri->port;
    if ( sipIri->user )
        record->user = escaped( textOf( resolved( textOf( sipIri->user ) ) ), userChars );
    if ( sipIri->password )
        record->password = escaped( textOf( resolved( textOf( sipIri->password ) ) ), passwordChars );
    return record.take();
}

// Text

static bool hides( TELSX_SIP_IRI sipIri, const Ref<RT_STRING> &name )
{
    return isHidden( name, { { literal<"transport">(), rt::present( sipIri->transport ) },
                             { literal<"user">(), rt::present( sipIri->userParam ) },
                             { literal<"method">(), rt::present( sipIri->method ) },
                             { literal<"ttl">(), rt::present( sipIri->ttl ) },
                             { literal<"maddr">(), rt::present( sipIri->maddr ) },
                             { literal<"lr">(), rt::present( sipIri->lr ) } } );
}

// In an IRI no comma stands directly before "sip:", "sips:" or "tel:" (see rsc/rsc_iri.h), so that of a user such as
// "a,sip" is escaped.
static Ref<RT_STRING> userBeforePassword( const Ref<RT_STRING> &user )
{
    Text text = textOf( user );
    int64_t end = text.length;
    while ( end > 0 && text.chs[end - 1] != ',' )
        --end;
    if ( end == 0 || !findWordInAnyCase<"sip", "sips", "tel">( text.after( end ) ) )
        return user;
    return joined( text.first( end - 1 ), "%2C", text.after( end ) );
}

RT_STRING telsx___SipIriEncode( TELSX_SIP_IRI sipIri )
{
    TELSX_ASSERT( sipIri );
    Ref<RT_STRING> text = textWithRoom( 64 );
    append( text, sipIri->secure ? literal<"sips:">() : literal<"sip:">() );
    if ( sipIri->user && sipIri->password )
        append( text, userBeforePassword( sipIri->user ), ':', sipIri->password, '@' );
    else if ( sipIri->user )
        append( text, sipIri->user, '@' );
    append( text, sipIri->host );
    if ( rt::present( sipIri->port ) )
        append( text, ':', Decimal( sipIri->port ) );
    if ( sipIri->transport )
        append( text, ";transport=", escaped( textOf( sipIri->transport ), paramChars ) );
    if ( sipIri->userParam )
        append( text, ";user=", escaped( textOf( sipIri->userParam ), paramChars ) );
    if ( sipIri->method )
        append( text, ";method=", escaped( textOf( sipIri->method ), paramChars ) );
    if ( rt::present( sipIri->ttl ) )
        append( text, ";ttl=", Decimal( sipIri->ttl ) );
    if ( sipIri->maddr )
        append( text, ";maddr=",
                escaped( textOf( adopt( telsx___HostEncode( sipIri->maddr.get() ) ) ), paramChars ) );
    if ( sipIri->lr )
        append( text, ";lr", sipIri->lr );
    for ( int64_t i = 0; i < rtDictLength( sipIri->params.get() ); ++i )
        if ( IriPair param = iriParamAt( sipIri->params, i ); !hides( sipIri, param.name ) )
        {
            append( text, ';' );
            appendIriPair( text, param, paramChars );
        }
    for ( int64_t i = 0; i < countHeaders( sipIri ); ++i )
    {
        append( text, i ? '&' : '?' );
        appendIriPair( text, headerAt( sipIri, i ), headerChars );
    }
    return text.take();
}

RT_STRING telsxSipIriEncode( TELSX_SIP_IRI sipIri ) { return telsx___SipIriEncode( sipIri ); }

// Stores the parameter in its field; false if it has none, or the field does not take the value.
static bool takeField( TELSX_SIP_IRI sipIri, const IriPair &param )
{
    Text name = textOf( param.name );
    if ( equals<"lr">( name ) )
        return sipIri->lr = param.rest, true;
    Ref<RT_STRING> value = valueOf( param.rest );
    if ( !value )
        return false;
    if ( equals<"transport">( name ) && telsxTransportOk( value.get() ) )
        return sipIri->transport = transportInLowerCase( textOf( value ) ), true;
    if ( equals<"user">( name ) && telsxTokenOk( value.get() ) )
        return sipIri->userParam = adopt( telsxTokenNormalize( value.get() ) ), true;
    if ( equals<"method">( name ) && telsxMethodOk( value.get() ) )
        return sipIri->method = value, true;
    if ( equals<"ttl">( name ) )
        if ( int64_t ttl = textOf( value ).as( telsx___TtlTryDecode ); ttl != -1 )
            return sipIri->ttl = ttl, true;
    if ( equals<"maddr">( name ) && telsxHostOk( value.get() ) )
        return sipIri->maddr = plainHost( textOf( value ) ), true;
    return false;
}

// Takes the parameters; false for bad text. If several have one name, the last one stays, or the last that its field
// takes.
static bool takeParams( Text &rest, TELSX_SIP_IRI sipIri )
{
    while ( rest && rest.chs[0] == ';' )
    {
        rest.take( 1 );
        IriPair param = toIriPair( rest.take( until( rest, ';', '?' ).length ), paramChars, paramChars );
        if ( !param.name )
            return false;
        if ( takeField( sipIri, param ) )
            rtDictDelStringKey( sipIri->params.address(), param.name.get() );
        else if ( !hides( sipIri, param.name ) )
            setIriParam( sipIri->params, param.name, param.rest );
    }
    return true;
}

static bool takeHeaders( Text &rest, TELSX_SIP_IRI sipIri )
{
    for ( RT_CHAR mark = '?'; rest && rest.chs[0] == mark; mark = '&' )
    {
        rest.take( 1 );
        IriPair header = toIriPair( rest.take( until( rest, '&' ).length ), headerChars, headerChars );
        if ( !header.name )
            return false;
        appendHeader( sipIri->headers, header );
    }
    return true;
}

// Takes the text before the at sign, which occurs only after the user, and the sign. The result points to null if there
// is none.
static Text takeUserInfo( Text &rest )
{
    int64_t plain = userChars.runOf( rest.chs, rest.length );
    int64_t length = plain + until( rest.after( plain ), '@' ).length;
    if ( length == rest.length )
        return {};
    Text info = rest.take( length );
    rest.take( 1 );
    return info;
}

// Telephones send number signs without escapes.
static constexpr rt::CharSet acceptedInUser = with( userChars, "#" );

// Stores the user and the password, the text that takeUserInfo returns; false for bad text.
static bool decodeUserInfo( Text info, TELSX_SIP_IRI sipIri )
{
    Text user = info.take( until( info, ':' ).length );
    sipIri->user = user ? escapedForm( user, userChars, acceptedInUser ) : Ref<RT_STRING>();
    if ( !sipIri->user || !info )
        return bool( sipIri->user );
    sipIri->user = userBeforePassword( sipIri->user );
    sipIri->password = escapedForm( info.after( 1 ), passwordChars );
    return bool( sipIri->password );
}

static bool isEndOfHost( Text rest )
{
    return !rest || rest.chs[0] == ':' || rest.chs[0] == ';' || rest.chs[0] == '?';
}

// Takes the host; null for bad text.
static Ref<RT_STRING> takeHost( Text &rest )
{
    Text host = rest.first( telsx___SkipHost( rest.chs, rest.length ) );
    bool isPlain = host && isEndOfHost( rest.after( host.length ) ) && !hasEscapes( host );
    if ( !isPlain )
        host = until( rest, ':', ';', '?' );
    rest.take( host.length );
    return isPlain ? hostOf( host ) : plainHost( host );
}

TELSX_SIP_IRI telsx___SipIriTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    bool secure = beginsInAnyCase<"sips:">( rest );
    if ( !secure && !beginsInAnyCase<"sip:">( rest ) )
        return nullptr;
    rest.take( secure ? 5 : 4 );
    Text userInfo = takeUserInfo( rest );
    Ref<RT_STRING> host = takeHost( rest );
    if ( !host )
        return nullptr;
    Ref<TELSX_SIP_IRI> sipIri = create( std::move( host ) );
    sipIri->secure = secure;
    if ( userInfo.chs && !decodeUserInfo( userInfo, sipIri.get() ) )
        return nullptr;
    if ( rest && rest.chs[0] == ':' )
    {
        rest.take( 1 );
        sipIri->port = rest.take( telsx___SkipPort ).as( telsx___PortTryDecode );
        if ( !rt::present( sipIri->port ) )
            return nullptr;
    }
    bool good = takeParams( rest, sipIri.get() ) && takeHeaders( rest, sipIri.get() ) && !rest;
    return good ? sipIri.take() : nullptr;
}

TELSX_SIP_IRI telsxSipIriTryDecode( RT_STRING iri )
{
    TELSX_ASSERT( iri );
    return textOf( iri ).as( telsx___SipIriTryDecode );
}
