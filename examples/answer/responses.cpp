#include "responses.hpp"

namespace
{

// No extension is understood here (RFC 3261, 8.2.2.3).
void addUnsupported( const Request &request, Message &response )
{
    Owned require( telsxHeaderRequireTryDecodeFromMessage( request.message.get() ) );
    Owned unsupported( telsxHeaderUnsupportedCreate() );
    Owned tags( telsxHeaderRequireOptionTagsVector( require.get() ) );
    telsxHeaderUnsupportedSetOptionTagsVector( unsupported.address(), tags.get() );
    telsxHeaderUnsupportedEncodeToMessage( unsupported.get(), response.address() );
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
    telsxHeaderCallIdEncodeToMessage( request.callId.get(), response.address() );
    copyHeader( request, "Cseq", response );
    return response;
}

Message refuse( const Request &request, int64_t statusCode )
{
    Message response = respond( request, statusCode );
    if ( statusCode == 405 )
        addAllow( response );
    else if ( statusCode == 415 )
        addAccept( response );
    else if ( statusCode == 420 )
        addUnsupported( request, response );
    return response;
}

Message refuseForNow( const Request &request, int64_t statusCode, int64_t retryAfter )
{
    Message response = respond( request, statusCode );
    Owned header( telsxHeaderRetryAfterCreate( retryAfter ) );
    telsxHeaderRetryAfterEncodeToMessage( header.get(), response.address() );
    return response;
}

void copyHeader( const Request &request, const char *name, Message &response )
{
    if ( Owned header{ telsxMessageHeaderCstr( request.message.get(), name, -1 ) } )
        telsxMessageSetHeader( response.address(), header.get() );
}

void addAllow( Message &response )
{
    Owned allow( telsxHeaderAllowCreate() );
    for ( const char *method : { "INVITE", "ACK", "CANCEL", "BYE", "OPTIONS", "REGISTER" } )
        telsxHeaderAllowSetMethodCstr( allow.address(), method, -1 );
    telsxHeaderAllowEncodeToMessage( allow.get(), response.address() );
}

void addAccept( Message &response )
{
    Owned accept( telsxAcceptCreate() );
    telsxAcceptSetMediaType( accept.address(), toString( "application" ).get() );
    telsxAcceptSetMediaSubtype( accept.address(), toString( "sdp" ).get() );
    Owned accepts( telsxHeaderAcceptCreate() );
    telsxHeaderAcceptAppendAccept( accepts.address(), accept.get() );
    telsxHeaderAcceptEncodeToMessage( accepts.get(), response.address() );
}

std::string encode( const Message &message )
{
    return toBytes( Owned( telsxMessageEncode( message.get() ) ) );
}
