/* Makes the messages of a short call from scratch and writes their bytes to standard output, each as its sender sends
 * it: Alice's INVITE, Bob's 200, Alice's ACK and BYE. `call | stream` shows them one by one.
 *
 *     call [--user NAME --password PASSWORD] [ADDRESS PORT]
 *
 * With an IP address and a port, Alice really calls Bob there, over UDP, and what is written is what she sends and
 * receives. With a user, she answers challenges (RFC 3261, 22). The password is visible to others on this machine.
 *
 * It is written in C, so whoever is given a new reference releases it by hand. */
#include <string.h>

#include "client.h"

typedef struct PARTY
{
    const char *name, *iri, *tag, *host, *contact, *description;
} PARTY;

static const PARTY alice = {
    .name = "Alice",
    .iri = "sip:alice@atlanta.example",
    .tag = "9fxced76sl",
    .host = "pc33.atlanta.example",
    .contact = "sip:alice@pc33.atlanta.example",
    .description = "v=0\r\n"
                   "o=alice 2890844526 2890844526 IN IP4 192.0.2.101\r\n"
                   "s=-\r\n"
                   "c=IN IP4 192.0.2.101\r\n"
                   "t=0 0\r\n"
                   "m=audio 49172 RTP/AVP 0\r\n",
};

static const PARTY bob = {
    .name = "Bob Bürger",
    .iri = "sip:bob@mühle.example",
    .tag = "314159",
    .host = "pc7.mühle.example",
    .contact = "sip:bob@192.0.2.4",
    .description = "v=0\r\n"
                   "o=bob 2808844564 2808844564 IN IP4 192.0.2.4\r\n"
                   "s=-\r\n"
                   "c=IN IP4 192.0.2.4\r\n"
                   "t=0 0\r\n"
                   "m=audio 3456 RTP/AVP 0\r\n",
};

static RT_STRING text( const char *utf8 ) { return clientText( utf8 ); }

/* Puts a Via on top of those in the message. */
static void addVia( TELSX_MESSAGE *msg, const char *host, const char *branch )
{
    TELSX_HEADER_VIA header = telsxHeaderViaTryDecodeFromMessage( *msg );
    if ( !header )
        header = telsxHeaderViaCreate();
    TELSX_VERSION version = telsxVersionCreateSip20();
    RT_STRING transport = text( "UDP" ), hostText = text( host ), branchText = text( branch );
    TELSX_VIA via = telsxViaCreate( version, transport, hostText );
    telsxViaSetBranch( &via, branchText );
    telsxViaSetRportEmpty( &via );
    telsxHeaderViaPrependVia( &header, via );
    telsxHeaderViaEncodeToMessage( header, msg );
    telsxViaRelease( via );
    rtStringRelease( branchText );
    rtStringRelease( hostText );
    rtStringRelease( transport );
    telsxVersionRelease( version );
    telsxHeaderViaRelease( header );
}

/* Puts an address on top of those in Record-Route. */
static void addRecordRoute( TELSX_MESSAGE *msg, const char *iri )
{
    TELSX_HEADER_RECORD_ROUTE header = telsxHeaderRecordRouteTryDecodeFromMessage( *msg );
    if ( !header )
        header = telsxHeaderRecordRouteCreate();
    RT_STRING iriText = text( iri );
    TELSX_ROUTE route = telsxRouteCreate( iriText );
    telsxHeaderRecordRoutePrependRoute( &header, route );
    telsxHeaderRecordRouteEncodeToMessage( header, msg );
    telsxRouteRelease( route );
    rtStringRelease( iriText );
    telsxHeaderRecordRouteRelease( header );
}

static void setMaxForwards( TELSX_MESSAGE *msg, int64_t hops )
{
    TELSX_HEADER_MAX_FORWARDS header = telsxHeaderMaxForwardsCreate( hops );
    telsxHeaderMaxForwardsEncodeToMessage( header, msg );
    telsxHeaderMaxForwardsRelease( header );
}

static void setFrom( TELSX_MESSAGE *msg, const PARTY *party )
{
    RT_STRING iri = text( party->iri ), name = text( party->name ), tag = text( party->tag );
    TELSX_HEADER_FROM header = telsxHeaderFromCreate( iri );
    telsxHeaderFromSetDisplayName( &header, name );
    telsxHeaderFromSetTag( &header, tag );
    telsxHeaderFromEncodeToMessage( header, msg );
    telsxHeaderFromRelease( header );
    rtStringRelease( tag );
    rtStringRelease( name );
    rtStringRelease( iri );
}

/* Without a tag: the called party gives itself one. */
static void setTo( TELSX_MESSAGE *msg, const PARTY *party )
{
    RT_STRING iri = text( party->iri ), name = text( party->name );
    TELSX_HEADER_TO header = telsxHeaderToCreate( iri );
    telsxHeaderToSetDisplayName( &header, name );
    telsxHeaderToEncodeToMessage( header, msg );
    telsxHeaderToRelease( header );
    rtStringRelease( name );
    rtStringRelease( iri );
}

static void setCallId( TELSX_MESSAGE *msg, const char *callId )
{
    RT_STRING callIdText = text( callId );
    TELSX_HEADER_CALL_ID header = telsxHeaderCallIdCreate( callIdText );
    telsxHeaderCallIdEncodeToMessage( header, msg );
    telsxHeaderCallIdRelease( header );
    rtStringRelease( callIdText );
}

static void setContact( TELSX_MESSAGE *msg, const char *iri )
{
    RT_STRING iriText = text( iri );
    TELSX_CONTACT contact = telsxContactCreate( iriText );
    TELSX_HEADER_CONTACT header = telsxHeaderContactCreate();
    telsxHeaderContactAppendContact( &header, contact );
    telsxHeaderContactEncodeToMessage( header, msg );
    telsxHeaderContactRelease( header );
    telsxContactRelease( contact );
    rtStringRelease( iriText );
}

static void setSubject( TELSX_MESSAGE *msg, const char *subject )
{
    RT_STRING subjectText = text( subject );
    TELSX_HEADER_SUBJECT header = telsxHeaderSubjectCreate( subjectText );
    telsxHeaderSubjectEncodeToMessage( header, msg );
    telsxHeaderSubjectRelease( header );
    rtStringRelease( subjectText );
}

/* What a party says about itself in an INVITE and in the answer: its address, the methods and extensions that it
 * understands, and the session that it offers. */
static void describe( TELSX_MESSAGE *msg, const PARTY *party )
{
    setContact( msg, party->contact );

    TELSX_HEADER_ALLOW allow = telsxHeaderAllowCreate();
    static const char *const methods[] = { "INVITE", "ACK", "CANCEL", "BYE", "OPTIONS" };
    for ( size_t i = 0; i < sizeof methods / sizeof *methods; ++i )
        telsxHeaderAllowSetMethodCstr( &allow, methods[i], -1 );
    telsxHeaderAllowEncodeToMessage( allow, msg );
    telsxHeaderAllowRelease( allow );

    TELSX_HEADER_SUPPORTED supported = telsxHeaderSupportedCreate();
    telsxHeaderSupportedSetOptionTagCstr( &supported, "timer", -1 );
    telsxHeaderSupportedEncodeToMessage( supported, msg );
    telsxHeaderSupportedRelease( supported );

    RT_STRING application = text( "application" ), sdp = text( "sdp" );
    TELSX_HEADER_CONTENT_TYPE contentType = telsxHeaderContentTypeCreate( application, sdp );
    telsxHeaderContentTypeEncodeToMessage( contentType, msg );
    telsxHeaderContentTypeRelease( contentType );
    rtStringRelease( application );
    rtStringRelease( sdp );

    RT_BUFFER body = rtBufferCreateFromBytesCopy( party->description, (int64_t)strlen( party->description ) );
    telsxMessageSetBody( msg, body );
    rtBufferRelease( body );
}

/* A request from Alice with the headers that all of hers have. */
static TELSX_MESSAGE request( const char *method, RT_STRING target, int64_t number, const char *branch )
{
    TELSX_VERSION version = telsxVersionCreateSip20();
    TELSX_MESSAGE msg = telsxMessageCreateRequestCstr( version, method, -1, target );
    addVia( &msg, alice.host, branch );
    setMaxForwards( &msg, 70 );

    RT_STRING methodText = telsxMessageRequestMethod( msg ), software = text( "call/1.0 (an example)" );
    TELSX_HEADER_CSEQ cseq = telsxHeaderCseqCreate( number, methodText );
    TELSX_HEADER_USER_AGENT userAgent = telsxHeaderUserAgentCreate( software );
    telsxHeaderCseqEncodeToMessage( cseq, &msg );
    telsxHeaderUserAgentEncodeToMessage( userAgent, &msg );
    telsxHeaderUserAgentRelease( userAgent );
    telsxHeaderCseqRelease( cseq );
    rtStringRelease( software );
    rtStringRelease( methodText );
    telsxVersionRelease( version );
    return msg;
}

/* The caller's first request, before there is a dialog (RFC 3261, 8.1.1). */
static TELSX_MESSAGE invite( void )
{
    RT_STRING target = text( bob.iri );
    TELSX_MESSAGE msg = request( "INVITE", target, 1, "z9hG4bK-alice-1" );
    rtStringRelease( target );
    setFrom( &msg, &alice );
    setTo( &msg, &bob );
    setCallId( &msg, "3848276298220188511@pc33.atlanta.example" );
    setSubject( &msg, "The mill, and who is to bring the flour" );
    describe( &msg, &alice );
    return msg;
}

/* A party's response to a request (RFC 3261, 8.2.6 and 12.1.1). */
static TELSX_MESSAGE respond( TELSX_MESSAGE to, int64_t statusCode, const PARTY *party )
{
    TELSX_VERSION version = telsxVersionCreateSip20();
    TELSX_MESSAGE msg = telsxMessageCreateResponse( version, statusCode );
    telsxVersionRelease( version );
    static const char *const names[] = { "Via", "Record-Route", "From", "To", "Call-Id", "Cseq" };
    for ( size_t i = 0; i < sizeof names / sizeof *names; ++i )
        clientTakeOver( &msg, to, names[i] );

    TELSX_HEADER_TO header = telsxHeaderToTryDecodeFromMessage( msg );
    RT_STRING tag = text( party->tag );
    telsxHeaderToSetTag( &header, tag );
    telsxHeaderToEncodeToMessage( header, &msg );
    rtStringRelease( tag );
    telsxHeaderToRelease( header );
    describe( &msg, party );
    return msg;
}

CLIENT_DEFINE_FIRST( firstContact, TELSX_CONTACT, Contact )

/* The address at which the other party wants to be reached, a new reference, or null. */
static RT_STRING remoteTarget( TELSX_MESSAGE response )
{
    TELSX_CONTACT contact = firstContact( response );
    RT_STRING iri = contact ? telsxContactIri( contact ) : NULL;
    clientRelease( contact );
    return iri;
}

/* The Route of the caller's later requests is the response's Record-Route, last value first (RFC 3261,
 * 12.1.2). */
static void setRoute( TELSX_MESSAGE *msg, TELSX_MESSAGE response )
{
    TELSX_HEADER_RECORD_ROUTE recorded = telsxHeaderRecordRouteTryDecodeFromMessage( response );
    if ( !recorded )
        return;
    TELSX_HEADER_ROUTE header = telsxHeaderRouteCreate();
    for ( int64_t i = telsxHeaderRecordRouteRoutesLength( recorded ); i-- > 0; )
    {
        TELSX_ROUTE route = telsxHeaderRecordRouteTryDecodeRouteAt( recorded, i );
        if ( route )
            telsxHeaderRouteAppendRoute( &header, route );
        clientRelease( route );
    }
    telsxHeaderRouteEncodeToMessage( header, msg );
    telsxHeaderRouteRelease( header );
    telsxHeaderRecordRouteRelease( recorded );
}

/* A later request from the caller in the dialog that the response created (RFC 3261, 12.2.1.1 and 13.2.2.4), or null if
 * the response doesn't say where to send it. */
static TELSX_MESSAGE inDialog( TELSX_MESSAGE response, const char *method, int64_t number,
                               const char *branch )
{
    RT_STRING target = remoteTarget( response );
    if ( !target )
        return NULL;
    TELSX_MESSAGE msg = request( method, target, number, branch );
    rtStringRelease( target );
    setRoute( &msg, response );
    clientTakeOver( &msg, response, "From" );
    clientTakeOver( &msg, response, "To" );
    clientTakeOver( &msg, response, "Call-Id" );
    return msg;
}

/* Both sides of a call, without a network. */
static void showCall( void )
{
    TELSX_MESSAGE msg = invite();
    clientShow( msg );

    /* The proxy on the way to Bob. */
    addVia( &msg, "proxy.mühle.example", "z9hG4bK-proxy-1" );
    addRecordRoute( &msg, "sip:proxy.mühle.example;lr" );
    setMaxForwards( &msg, 69 );

    TELSX_MESSAGE ok = respond( msg, 200, &bob );
    TELSX_MESSAGE ack = inDialog( ok, "ACK", 1, "z9hG4bK-alice-2" );
    TELSX_MESSAGE bye = inDialog( ok, "BYE", 2, "z9hG4bK-alice-3" );
    clientShow( ok );
    clientShow( ack );
    clientShow( bye );

    telsxMessageRelease( bye );
    telsxMessageRelease( ack );
    telsxMessageRelease( ok );
    telsxMessageRelease( msg );
}

/* Whether the response is a 2xx; complains if it isn't. */
static bool succeeds( const char *method, TELSX_MESSAGE response )
{
    int64_t statusCode = response ? telsxMessageResponseStatusCode( response ) : 0;
    if ( statusCode / 100 == 2 )
        return true;
    if ( response )
        fprintf( stderr, "call: the answer to %s is %d\n", method, (int)statusCode );
    else
        fprintf( stderr, "call: nothing answers %s\n", method );
    return false;
}

/* Alice's side of a call; false if it doesn't succeed. */
static bool callBob( CLIENT *client )
{
    TELSX_MESSAGE msg = invite();
    RT_STRING callId = clientRandomText();
    TELSX_HEADER_CALL_ID header = telsxHeaderCallIdCreate( callId );
    telsxHeaderCallIdEncodeToMessage( header, &msg );
    telsxHeaderCallIdRelease( header );
    rtStringRelease( callId );

    TELSX_MESSAGE ok = clientExchange( client, &msg ), ack = NULL, bye = NULL, last = NULL;
    bool good = succeeds( "INVITE", ok );
    if ( good )
    {
        TELSX_HEADER_CSEQ cseq = telsxHeaderCseqTryDecodeFromMessage( msg );
        int64_t number = telsxHeaderCseqCseq( cseq );
        telsxHeaderCseqRelease( cseq );
        ack = inDialog( ok, "ACK", number, "z9hG4bK-alice-2" );
        bye = inDialog( ok, "BYE", number + 1, "z9hG4bK-alice-3" );
    }
    if ( ack )
    {
        /* An ACK can't be challenged, so it has the credentials of its INVITE (RFC 3261, 22.1). */
        clientTakeOver( &ack, msg, "Authorization" );
        clientTakeOver( &ack, msg, "Proxy-Authorization" );
        clientSetNewBranch( &ack );
        clientSend( client, ack );
        last = clientExchange( client, &bye );
        good = succeeds( "BYE", last );
    }
    else if ( good )
    {
        fputs( "call: the 200 has no good Contact\n", stderr );
        good = false;
    }
    clientRelease( last );
    clientRelease( bye );
    clientRelease( ack );
    clientRelease( ok );
    telsxMessageRelease( msg );
    return good;
}

static bool isUtf8( const char *bytes )
{
    RT_STRING string = text( bytes );
    clientRelease( string );
    return string != NULL;
}

int main( int argc, char **argv )
{
    rtModuleStart( telsxModule() );
    CLIENT client = { .socket = -1 };
    int at = 1;
    bool good = true;
    for ( ; good && at + 1 < argc && strncmp( argv[at], "--", 2 ) == 0; at += 2 )
    {
        if ( strcmp( argv[at], "--user" ) == 0 )
            client.user = argv[at + 1];
        else if ( strcmp( argv[at], "--password" ) == 0 )
            client.password = argv[at + 1];
        else
            good = false;
        good = good && isUtf8( argv[at + 1] );
    }
    if ( !good || !client.user != !client.password || ( at != argc && at + 2 != argc ) )
    {
        fputs( "usage: call [--user NAME --password PASSWORD] [ADDRESS PORT]\n", stderr );
        return 2;
    }
    if ( at == argc )
        showCall();
    else if ( clientOpen( &client, argv[at], argv[at + 1] ) )
        good = callBob( &client );
    else
    {
        fprintf( stderr, "call: %s %s is no address to call\n", argv[at], argv[at + 1] );
        good = false;
    }
    clientClose( &client );
    rtModuleStop( telsxModule() );
    return fflush( stdout ) == 0 && good ? 0 : 1;
}
