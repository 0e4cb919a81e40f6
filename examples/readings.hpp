// The typed reading of a message: what its headers say, for each kind that the library has a type for.
#pragma once

#include <iomanip>

#include "example.hpp"

// Writes what a value or a header says, a field on a line; what is absent has no line.
class Reading
{
public:
    explicit Reading( std::ostream &to ) : out( to ) {}

    void operator()( TELSX_HEADER_CALL_ID header ) const
    {
        field( "call id", telsxHeaderCallIdCallId( header ) );
    }

    void operator()( TELSX_HEADER_CSEQ header ) const
    {
        field( "number", telsxHeaderCseqCseq( header ) );
        field( "method", telsxHeaderCseqMethod( header ) );
    }

    void operator()( TELSX_HEADER_FROM header ) const
    {
        field( "display name", telsxHeaderFromDisplayName( header ) );
        address( telsxHeaderFromIri( header ) );
        field( "tag", telsxHeaderFromTag( header ) );
        field( "epid", telsxHeaderFromEpid( header ) );
        parameters( telsxHeaderFromGenericParams( header ) );
    }

    void operator()( TELSX_HEADER_TO header ) const
    {
        field( "display name", telsxHeaderToDisplayName( header ) );
        address( telsxHeaderToIri( header ) );
        field( "tag", telsxHeaderToTag( header ) );
        field( "epid", telsxHeaderToEpid( header ) );
        parameters( telsxHeaderToGenericParams( header ) );
    }

    void operator()( TELSX_HEADER_MAX_FORWARDS header ) const
    {
        field( "hops", telsxHeaderMaxForwardsMaxForwards( header ) );
    }

    void operator()( TELSX_ACCEPT accept ) const
    {
        field( "type", telsxAcceptMediaType( accept ) );
        field( "subtype", telsxAcceptMediaSubtype( accept ) );
        weight( telsxAcceptQvalue( accept ) );
        parameters( telsxAcceptGenericParams( accept ) );
    }

    void operator()( TELSX_ACCEPT_ENCODING encoding ) const
    {
        field( "coding", telsxAcceptEncodingContentCoding( encoding ) );
        weight( telsxAcceptEncodingQvalue( encoding ) );
        parameters( telsxAcceptEncodingGenericParams( encoding ) );
    }

    void operator()( TELSX_ALERT_INFO info ) const
    {
        address( telsxAlertInfoIri( info ) );
        parameters( telsxAlertInfoGenericParams( info ) );
    }

    void operator()( TELSX_CALL_INFO info ) const
    {
        address( telsxCallInfoIri( info ) );
        field( "purpose", telsxCallInfoPurpose( info ) );
        parameters( telsxCallInfoGenericParams( info ) );
    }

    void operator()( TELSX_CONTACT contact ) const
    {
        field( "display name", telsxContactDisplayName( contact ) );
        address( telsxContactIri( contact ) );
        weight( telsxContactQvalue( contact ) );
        field( "expires", telsxContactExpires( contact ) );
        field( "rc", telsxContactRc( contact ) );
        field( "mp", telsxContactMp( contact ) );
        field( "np", telsxContactNp( contact ) );
        field( "instance", telsxContactSipInstance( contact ) );
        parameters( telsxContactGenericParams( contact ) );
    }

    void operator()( TELSX_DIVERSION diversion ) const
    {
        field( "display name", telsxDiversionDisplayName( diversion ) );
        address( telsxDiversionIri( diversion ) );
        field( "reason", telsxDiversionReason( diversion ) );
        field( "counter", telsxDiversionCounter( diversion ) );
        field( "limit", telsxDiversionLimit( diversion ) );
        field( "privacy", telsxDiversionPrivacy( diversion ) );
        field( "screen", telsxDiversionScreen( diversion ) );
        parameters( telsxDiversionGenericParams( diversion ) );
    }

    void operator()( TELSX_ERROR_INFO info ) const
    {
        address( telsxErrorInfoIri( info ) );
        parameters( telsxErrorInfoGenericParams( info ) );
    }

    void operator()( TELSX_HISTORY_INFO info ) const
    {
        field( "display name", telsxHistoryInfoDisplayName( info ) );
        address( telsxHistoryInfoIri( info ) );
        field( "index", telsxHistoryInfoIndex( info ) );
        field( "rc", telsxHistoryInfoRc( info ) );
        field( "mp", telsxHistoryInfoMp( info ) );
        field( "np", telsxHistoryInfoNp( info ) );
        parameters( telsxHistoryInfoGenericParams( info ) );
    }

    void operator()( TELSX_IDENTITY_VALUE identity ) const
    {
        field( "display name", telsxIdentityValueDisplayName( identity ) );
        address( telsxIdentityValueIri( identity ) );
    }

    void operator()( TELSX_REASON reason ) const
    {
        field( "protocol", telsxReasonProtocol( reason ) );
        field( "cause", telsxReasonCause( reason ) );
        field( "text", telsxReasonText( reason ) );
        parameters( telsxReasonGenericParams( reason ) );
    }

    void operator()( TELSX_ROUTE route ) const
    {
        field( "display name", telsxRouteDisplayName( route ) );
        address( telsxRouteIri( route ) );
        parameters( telsxRouteGenericParams( route ) );
    }

    void operator()( TELSX_VIA via ) const
    {
        Owned version( telsxViaVersion( via ) );
        field( "protocol", telsxVersionToString( version.get() ) );
        field( "transport", telsxViaTransport( via ) );
        field( "host", telsxViaHost( via ) );
        field( "port", telsxViaPort( via ) );
        field( "ttl", telsxViaTtl( via ) );
        field( "maddr", telsxViaMaddr( via ) );
        if ( Owned received{ telsxViaReceived( via ) } )
            field( "received", netAddressToString( received.get() ) );
        if ( telsxViaHasRportEmpty( via ) )
            line( "rport", "asked for" );
        field( "rport", telsxViaRportNumeric( via ) );
        field( "branch", telsxViaBranch( via ) );
        parameters( telsxViaGenericParams( via ) );
    }

    void operator()( TELSX_SIP_IRI sip ) const
    {
        field( "  user", telsxSipIriUser( sip ) );
        field( "  password", telsxSipIriPassword( sip ) );
        field( "  host", telsxSipIriHost( sip ) );
        field( "  port", telsxSipIriPort( sip ) );
        field( "  transport", telsxSipIriTransport( sip ) );
        field( "  user is", telsxSipIriUserParam( sip ) );
        field( "  method", telsxSipIriMethod( sip ) );
        field( "  ttl", telsxSipIriTtl( sip ) );
        field( "  maddr", telsxSipIriMaddr( sip ) );
        if ( telsxSipIriLr( sip ) )
            line( "  router", "loose" );
        for ( int64_t i = 0; i < telsxSipIriParamsLength( sip ); ++i )
            pair( "  parameter", telsxSipIriParamNameAt( sip, i ), telsxSipIriParamValueAt( sip, i ) );
        for ( int64_t i = 0; i < telsxSipIriHeadersLength( sip ); ++i )
            pair( "  header", telsxSipIriHeaderNameAt( sip, i ), telsxSipIriHeaderValueAt( sip, i ) );
    }

    void operator()( TELSX_TEL_IRI tel ) const
    {
        field( "  number", telsxTelIriNumber( tel ) );
        field( "  extension", telsxTelIriExtension( tel ) );
        field( "  subaddress", telsxTelIriIsub( tel ) );
        field( "  context", telsxTelIriPhoneContext( tel ) );
        for ( int64_t i = 0; i < telsxTelIriParamsLength( tel ); ++i )
            pair( "  parameter", telsxTelIriParamNameAt( tel, i ), telsxTelIriParamValueAt( tel, i ) );
    }

    void operator()( TELSX_WARNING_VALUE warning ) const
    {
        field( "code", telsxWarningValueWarnCode( warning ) );
        field( "agent", telsxWarningValueWarnAgent( warning ) );
        field( "text", telsxWarningValueWarnText( warning ) );
    }

private:
    void line( const char *name, const std::string &text ) const
    {
        out << "    " << std::left << std::setw( 14 ) << name << text << '\n';
    }

    // What the getters return: a new reference or null, a number or -1.
    void field( const char *name, RT_STRING text ) const
    {
        if ( Owned owned{ text } )
            line( name, printable( owned ) );
    }
    void field( const char *name, int64_t number ) const
    {
        if ( number != -1 )
            line( name, std::to_string( number ) );
    }

    // An address, and its parts below it if the library knows the scheme.
    void address( RT_STRING iri ) const
    {
        Owned owned( iri );
        line( "iri", printable( owned ) );
        if ( Owned sip{ telsxSipIriTryDecode( iri ) } )
            ( *this )( sip.get() );
        if ( Owned tel{ telsxTelIriTryDecode( iri ) } )
            ( *this )( tel.get() );
    }

    // A name, and its value, which may be null.
    void pair( const char *name, RT_STRING left, RT_STRING right ) const
    {
        Owned key( left ), value( right );
        line( name, printable( key ) + ( value ? "=" + printable( value ) : "" ) );
    }

    void weight( int64_t thousandths ) const
    {
        if ( thousandths != -1 )
            line( "q", std::to_string( thousandths / 1000 ) + '.'
                           + std::to_string( 1000 + thousandths % 1000 ).substr( 1 ) );
    }

    void parameters( TELSX_GENERIC_PARAMS params ) const
    {
        Owned owned( params );
        for ( int64_t i = 0; i < telsxGenericParamsLength( params ); ++i )
        {
            Owned param( telsxGenericParamsParamAt( params, i ) );
            pair( "parameter", telsxGenericParamName( param.get() ),
                  telsxGenericParamValueNonNormalized( param.get() ) );
        }
    }

    std::ostream &out;
};

// Of a kind that is one value. A kind that Reading doesn't know shows its text.
template <class HANDLE>
void showHeader( const char *name, const Owned<HANDLE> &header, RT_STRING ( *toString )( HANDLE ) )
{
    std::cout << "  " << name << '\n';
    if constexpr ( std::is_invocable_v<Reading, HANDLE> )
        Reading{ std::cout }( header.get() );
    else
        std::cout << "    " << printable( Owned( toString( header.get() ) ) ) << '\n';
}

inline bool isStar( TELSX_HEADER_CONTACT header ) { return telsxHeaderContactIsStarForm( header ); }
inline bool isStar( const void * ) { return false; }

// Of a kind that is a list of values.
template <class HANDLE, class VALUE>
void showValues( const char *name, const Owned<HANDLE> &header, int64_t ( *lengthOf )( HANDLE ),
                 VALUE ( *tryDecodeAt )( HANDLE, int64_t ) )
{
    int64_t length = lengthOf( header.get() );
    if ( length == 0 )
        std::cout << "  " << name << ( isStar( header.get() ) ? "\n    *\n" : " is empty\n" );
    for ( int64_t i = 0; i < length; ++i )
    {
        Owned value( tryDecodeAt( header.get(), i ) );
        std::cout << "  " << name;
        if ( length > 1 )
            std::cout << ' ' << i + 1 << " of " << length;
        std::cout << ( value ? "\n" : " does not decode\n" );
        if ( value )
            Reading{ std::cout }( value.get() );
    }
}

// Of a kind that is a list or a set of texts.
template <class HANDLE>
void showTexts( const char *name, const Owned<HANDLE> &header, int64_t ( *lengthOf )( HANDLE ),
                RT_STRING ( *textAt )( HANDLE, int64_t ) )
{
    int64_t length = lengthOf( header.get() );
    std::cout << "  " << name << ( length ? "\n" : " is empty\n" );
    for ( int64_t i = 0; i < length; ++i )
        std::cout << "    " << printable( Owned( textAt( header.get(), i ) ) ) << '\n';
}

// Goes through all kinds and shows those that the message holds.
inline void showTyped( const Message &message )
{
    TELSX_MESSAGE msg = message.get();
    std::cout << "typed\n";
#define SHOW( NAME, SORT, SIP_NAME, SHOW_HEADER, ... )              \
    if ( Owned header{ telsx##NAME##TryDecodeFromMessage( msg ) } ) \
        SHOW_HEADER( SIP_NAME, header, __VA_ARGS__ );               \
    else if ( telsx##NAME##PresentInMessage( msg ) )                \
        std::cout << "  " SIP_NAME " does not decode\n";
#define TELSX_KIND( NAME, SORT, SIP_NAME ) SHOW( NAME, SORT, SIP_NAME, showHeader, telsx##NAME##ToString )
#define TELSX_KIND_OF_VALUES( NAME, SORT, SIP_NAME, WORD, VALUE ) \
    SHOW( NAME, SORT, SIP_NAME, showValues, telsx##NAME##WORD##sLength, telsx##NAME##TryDecode##WORD##At )
#define TELSX_KIND_OF_TEXTS( NAME, SORT, SIP_NAME, WORD ) \
    SHOW( NAME, SORT, SIP_NAME, showTexts, telsx##NAME##WORD##sLength, telsx##NAME##WORD##At )
#include <telsx/telsx_headers.def>
#undef TELSX_KIND
#undef SHOW
}
