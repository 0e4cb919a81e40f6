#include "responses.hpp"

namespace
{

void addAllow( Message &response )
{
    Owned allow( telsxHeaderAllowCreate() );
    for ( const char *method : { "INVITE", "ACK", "CANCEL", "BYE", "OPTIONS", "REGISTER" } )
        telsxHeaderAllowSetMethodCstr( allow.address(), method, -1 );
    telsxHeaderAllowEncodeToMessage( allow.get(), response.address() );
}

// The bodies that are understood, with their codings and languages (RFC 3261, 8.2.3).
void addAccept( Message &response )
{
    Owned accept( telsxAcceptCreate() );
    telsxAcceptSetMediaType( accept.address(), toString( "application" ).get() );
    telsxAcceptSetMediaSubtype( accept.address(), toString( "sdp" ).get() );
    Owned accepts( telsxHeaderAcceptCreate() );
    telsxHeaderAcceptAppendAccept( accepts.address(), accept.get() );
    telsxHeaderAcceptEncodeToMessage( accepts.get(), response.address() );
    Owned coding( telsxAcceptEncodingCreateWithContentCoding( toString( "identity" ).get() ) );
    Owned codings( telsxHeaderAcceptEncodingCreate() );
    telsxHeaderAcceptEncodingAppendAcceptEncoding( codings.address(), coding.get() );
    telsxHeaderAcceptEncodingEncodeToMessage( codings.get(), response.address() );
    setLine( response, "Accept-Language", toString( "en" ) );
}

// No extension is understood here (RFC 3261, 8.2.2.3).
void addUnsupported( const Request &request, Message &response )
{
    Owned require( telsxHeaderRequireTryDecodeFromMessage( request.message.get() ) );
    Owned unsupported( telsxHeaderUnsupportedCreate() );
    Owned tags( telsxHeaderRequireOptionTagsVector( require.get() ) );
    telsxHeaderUnsupportedSetOptionTagsVector( unsupported.address(), tags.get() );
    telsxHeaderUnsupportedEncodeToMessage( unsupported.get(), response.address() );
}

// Why an offer is refused (RFC 3261, 13.3.1.3): there is no common codec.
void addWarning( Message &response )
{
    Owned warning( telsxWarningValueCreate( 305, toString( "answer" ).get() ) );
    Owned warnings( telsxHeaderWarningCreate() );
    telsxHeaderWarningAppendWarning( warnings.address(), warning.get() );
    telsxHeaderWarningEncodeToMessage( warnings.get(), response.address() );
}

} // namespace

Message respond( const Request &request, int64_t statusCode )
{
    Owned version( telsxVersionCreateSip20() );
    Owned response( telsxMessageCreateResponse( version.get(), statusCode ) );
    telsxHeaderViaEncodeToMessage( request.vias.get(), response.address() );
    telsxHeaderFromEncodeToMessage( request.from.get(), response.address() );
    Owned<TELSX_HEADER_TO> to = request.to;
    if ( statusCode == 100 )
        copyHeader( request, "Timestamp", response );
    else if ( request.tag.empty() )
        telsxHeaderToSetTag( to.address(), toString( toTag( request.key, request.random ) ).get() );
    telsxHeaderToEncodeToMessage( to.get(), response.address() );
    if ( request.proof && statusCode / 100 == 2 )
        telsxHeaderAuthenticationInfoEncodeToMessage( request.proof.get(), response.address() );
    telsxHeaderCallIdEncodeToMessage( request.callId.get(), response.address() );
    Owned cseq( telsxMessageHeaderCstr( request.message.get(), "Cseq", -1 ) ); // which may be bad
    setLine( response, "Cseq", Owned( telsxMessageHeaderLastLine( cseq.get() ) ) );
    return response;
}

Message refuse( const Request &request, int64_t statusCode )
{
    Message response = respond( request, statusCode );
    if ( statusCode == 405 )
        addAllow( response );
    else if ( statusCode == 406 || statusCode == 415 )
        addAccept( response );
    else if ( statusCode == 420 )
        addUnsupported( request, response );
    else if ( statusCode == 488 )
        addWarning( response );
    return response;
}

Message refuseForNow( const Request &request, int64_t statusCode, int64_t retryAfter )
{
    Message response = respond( request, statusCode );
    Owned header( telsxHeaderRetryAfterCreate( retryAfter ) );
    telsxHeaderRetryAfterEncodeToMessage( header.get(), response.address() );
    return response;
}

void setLine( Message &response, const char *name, const String &line )
{
    Owned header( telsxMessageHeaderCreateCstr( name, -1 ) );
    telsxMessageHeaderAppendLine( header.address(), line.get() );
    telsxMessageSetHeader( response.address(), header.get() );
}

void copyHeader( const Request &request, const char *name, Message &response )
{
    if ( Owned header{ telsxMessageHeaderCstr( request.message.get(), name, -1 ) } )
        telsxMessageSetHeader( response.address(), header.get() );
}

void addCapabilities( Message &response )
{
    addAllow( response );
    setLine( response, "Supported",
             toString( "" ) ); // no extension; the typed header would leave the line out
    addAccept( response );
}

std::string encode( const Message &message )
{
    return toBytes( Owned( telsxMessageEncode( message.get() ) ) );
}
