// The typed reading of a message: what its headers say, for each kind that the library has a type for.
#pragma once

#include <type_traits>

#include "listing.hpp"

// Tells what a value or a header says, field by field; what is absent is left out.
class Reading
{
public:
    explicit Reading( Listing &listing ) : to( listing ) {}

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
        field( "iri", telsxHeaderFromIri( header ) );
        field( "tag", telsxHeaderFromTag( header ) );
        field( "epid", telsxHeaderFromEpid( header ) );
        parameters( telsxHeaderFromGenericParams( header ) );
    }

    void operator()( TELSX_HEADER_TO header ) const
    {
        field( "display name", telsxHeaderToDisplayName( header ) );
        field( "iri", telsxHeaderToIri( header ) );
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
        field( "iri", telsxAlertInfoIri( info ) );
        parameters( telsxAlertInfoGenericParams( info ) );
    }

    void operator()( TELSX_CALL_INFO info ) const
    {
        field( "iri", telsxCallInfoIri( info ) );
        field( "purpose", telsxCallInfoPurpose( info ) );
        parameters( telsxCallInfoGenericParams( info ) );
    }

    void operator()( TELSX_CONTACT contact ) const
    {
        field( "display name", telsxContactDisplayName( contact ) );
        field( "iri", telsxContactIri( contact ) );
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
        field( "iri", telsxDiversionIri( diversion ) );
        field( "reason", telsxDiversionReason( diversion ) );
        field( "counter", telsxDiversionCounter( diversion ) );
        field( "limit", telsxDiversionLimit( diversion ) );
        field( "privacy", telsxDiversionPrivacy( diversion ) );
        field( "screen", telsxDiversionScreen( diversion ) );
        parameters( telsxDiversionGenericParams( diversion ) );
    }

    void operator()( TELSX_ERROR_INFO info ) const
    {
        field( "iri", telsxErrorInfoIri( info ) );
        parameters( telsxErrorInfoGenericParams( info ) );
    }

    void operator()( TELSX_HISTORY_INFO info ) const
    {
        field( "display name", telsxHistoryInfoDisplayName( info ) );
        field( "iri", telsxHistoryInfoIri( info ) );
        field( "index", telsxHistoryInfoIndex( info ) );
        field( "rc", telsxHistoryInfoRc( info ) );
        field( "mp", telsxHistoryInfoMp( info ) );
        field( "np", telsxHistoryInfoNp( info ) );
        parameters( telsxHistoryInfoGenericParams( info ) );
    }

    void operator()( TELSX_IDENTITY_VALUE identity ) const
    {
        field( "display name", telsxIdentityValueDisplayName( identity ) );
        field( "iri", telsxIdentityValueIri( identity ) );
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
        field( "iri", telsxRouteIri( route ) );
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
            to.field( "rport", toString( "asked for" ) );
        field( "rport", telsxViaRportNumeric( via ) );
        field( "branch", telsxViaBranch( via ) );
        parameters( telsxViaGenericParams( via ) );
    }

    void operator()( TELSX_WARNING_VALUE warning ) const
    {
        field( "code", telsxWarningValueWarnCode( warning ) );
        field( "agent", telsxWarningValueWarnAgent( warning ) );
        field( "text", telsxWarningValueWarnText( warning ) );
    }

private:
    // What the getters return: a new reference or null, a number or -1.
    void field( const char *name, RT_STRING text ) const
    {
        if ( Owned owned{ text } )
            to.field( name, owned );
    }
    void field( const char *name, int64_t number ) const
    {
        if ( number != -1 )
            to.field( name, number );
    }

    void weight( int64_t thousandths ) const
    {
        if ( thousandths != -1 )
            to.weight( "q", thousandths );
    }

    void parameters( TELSX_GENERIC_PARAMS params ) const
    {
        Owned owned( params );
        for ( int64_t i = 0; i < telsxGenericParamsLength( params ); ++i )
        {
            Owned param( telsxGenericParamsParamAt( params, i ) );
            to.parameter( Owned( telsxGenericParamName( param.get() ) ),
                          Owned( telsxGenericParamValueNonNormalized( param.get() ) ) );
        }
    }

    Listing &to;
};

// Of a kind that is one value. A kind that Reading doesn't know shows its text.
template <class HANDLE>
void listHeader( Listing &to, const char *name, const Owned<HANDLE> &header, RT_STRING ( *toText )( HANDLE ) )
{
    to.beginHeader( name, 1 );
    if constexpr ( std::is_invocable_v<Reading, HANDLE> )
    {
        to.beginValue();
        Reading{ to }( header.get() );
        to.endValue();
    }
    else
        to.text( Owned( toText( header.get() ) ) );
    to.endHeader();
}

inline bool isStar( TELSX_HEADER_CONTACT header ) { return telsxHeaderContactIsStarForm( header ); }
inline bool isStar( const void * ) { return false; }

// Of a kind that is a list of values.
template <class HANDLE, class VALUE>
void listValues( Listing &to, const char *name, const Owned<HANDLE> &header, int64_t ( *lengthOf )( HANDLE ),
                 VALUE ( *tryDecodeAt )( HANDLE, int64_t ) )
{
    bool star = isStar( header.get() );
    int64_t length = lengthOf( header.get() );
    to.beginHeader( name, star ? 1 : length );
    if ( star )
        to.text( toString( "*" ) );
    for ( int64_t i = 0; i < length; ++i )
    {
        if ( Owned value{ tryDecodeAt( header.get(), i ) } )
        {
            to.beginValue();
            Reading{ to }( value.get() );
            to.endValue();
        }
        else
            to.unreadableValue();
    }
    to.endHeader();
}

// Of a kind that is a list or a set of texts.
template <class HANDLE>
void listTexts( Listing &to, const char *name, const Owned<HANDLE> &header, int64_t ( *lengthOf )( HANDLE ),
                RT_STRING ( *textAt )( HANDLE, int64_t ) )
{
    int64_t length = lengthOf( header.get() );
    to.beginHeader( name, length );
    for ( int64_t i = 0; i < length; ++i )
        to.text( Owned( textAt( header.get(), i ) ) );
    to.endHeader();
}

// Goes through all kinds and tells those that the message holds.
inline void listTyped( const Message &message, Listing &to )
{
    TELSX_MESSAGE msg = message.get();
    to.beginTyped();
#define LIST( NAME, SORT, SIP_NAME, LIST_HEADER, ... )              \
    if ( Owned header{ telsx##NAME##TryDecodeFromMessage( msg ) } ) \
        LIST_HEADER( to, SIP_NAME, header, __VA_ARGS__ );           \
    else if ( telsx##NAME##PresentInMessage( msg ) )                \
        to.unreadable( SIP_NAME );
#define TELSX_KIND( NAME, SORT, SIP_NAME ) LIST( NAME, SORT, SIP_NAME, listHeader, telsx##NAME##ToString )
#define TELSX_KIND_OF_VALUES( NAME, SORT, SIP_NAME, WORD, VALUE ) \
    LIST( NAME, SORT, SIP_NAME, listValues, telsx##NAME##WORD##sLength, telsx##NAME##TryDecode##WORD##At )
#define TELSX_KIND_OF_TEXTS( NAME, SORT, SIP_NAME, WORD ) \
    LIST( NAME, SORT, SIP_NAME, listTexts, telsx##NAME##WORD##sLength, telsx##NAME##WORD##At )
#include <telsx/telsx_headers.def>
#undef TELSX_KIND
#undef LIST
    to.endTyped();
}
