#define _POSIX_C_SOURCE 200809L

#include "client.h"

#include <stdlib.h>
#include <string.h>
#include <strings.h>
#include <time.h>

#include <netdb.h>
#include <poll.h>
#include <sys/random.h>
#include <sys/socket.h>
#include <unistd.h>

#include <rsc/rsc.h>

#include "digest.h"

RT_STRING clientText( const char *utf8 )
{
    return rtStringTryCreateFromUtf8( utf8, (int64_t)strlen( utf8 ) );
}

RT_STRING clientRandomText( void )
{
    uint64_t number;
    if ( getrandom( &number, sizeof number, 0 ) != sizeof number )
        abort();
    char digits[17];
    snprintf( digits, sizeof digits, "%016llx", (unsigned long long)number );
    return clientText( digits );
}

void clientRelease( void *object )
{
    if ( object )
        rtObjRelease( object );
}

/* The text as UTF-8, to be freed, or null. Releases the text. */
static char *toUtf8( RT_STRING text )
{
    if ( !text )
        return NULL;
    RT_BUFFER bytes = rtCharsetStringToBuffer( RT_CHARSET_UTF8, text );
    rtStringRelease( text );
    size_t length = (size_t)rtBufferLength( bytes );
    char *utf8 = malloc( length + 1 );
    if ( !utf8 )
        abort();
    memcpy( utf8, rtBufferBacking( bytes ), length );
    utf8[length] = 0;
    rtBufferRelease( bytes );
    return utf8;
}

void clientTakeOver( TELSX_MESSAGE *msg, TELSX_MESSAGE from, const char *name )
{
    TELSX_MESSAGE_HEADER header = telsxMessageHeaderCstr( from, name, -1 );
    if ( !header )
        return;
    telsxMessageSetHeader( msg, header );
    clientRelease( header );
}

void clientShow( TELSX_MESSAGE msg )
{
    RT_BUFFER bytes = telsxMessageEncode( msg );
    fwrite( rtBufferBacking( bytes ), 1, (size_t)rtBufferLength( bytes ), stdout );
    rtBufferRelease( bytes );
}

bool clientOpen( CLIENT *client, const char *address, const char *port )
{
    struct addrinfo hints = { .ai_flags = AI_NUMERICHOST | AI_NUMERICSERV, .ai_socktype = SOCK_DGRAM },
                    *found;
    if ( getaddrinfo( address, port, &hints, &found ) != 0 )
        return false;
    client->socket = socket( found->ai_family, SOCK_DGRAM, 0 );
    bool good = client->socket != -1 && connect( client->socket, found->ai_addr, found->ai_addrlen ) == 0;
    freeaddrinfo( found );
    return good;
}

void clientClose( CLIENT *client )
{
    if ( client->socket != -1 )
        close( client->socket );
}

/* What can't be sent is lost, like a datagram. */
static void sendBytes( CLIENT *client, TELSX_MESSAGE msg )
{
    RT_BUFFER bytes = telsxMessageEncode( msg );
    (void)!send( client->socket, rtBufferBacking( bytes ), (size_t)rtBufferLength( bytes ), 0 );
    rtBufferRelease( bytes );
}

void clientSend( CLIENT *client, TELSX_MESSAGE msg )
{
    clientShow( msg );
    sendBytes( client, msg );
}

CLIENT_DEFINE_FIRST( topVia, TELSX_VIA, Via )

/* The branch of the top Via, a new reference, or null. */
static RT_STRING branchOf( TELSX_MESSAGE msg )
{
    TELSX_VIA top = topVia( msg );
    RT_STRING branch = top ? telsxViaBranch( top ) : NULL;
    clientRelease( top );
    return branch;
}

void clientSetNewBranch( TELSX_MESSAGE *request )
{
    TELSX_HEADER_VIA vias = telsxHeaderViaTryDecodeFromMessage( *request );
    TELSX_VIA top = telsxHeaderViaTryDecodeViaAt( vias, 0 );
    RT_STRING branch = clientText( "z9hG4bK-" ), random = clientRandomText();
    rtStringAppend( &branch, random );
    telsxViaSetBranch( &top, branch );
    telsxHeaderViaSetViaAt( &vias, 0, top );
    telsxHeaderViaEncodeToMessage( vias, request );
    clientRelease( random );
    clientRelease( branch );
    clientRelease( top );
    clientRelease( vias );
}

/* The next response with this branch, a new reference; null if none arrives in the milliseconds. */
static TELSX_MESSAGE receive( CLIENT *client, RT_STRING branch, int milliseconds )
{
    struct pollfd waiting = { .fd = client->socket, .events = POLLIN };
    char bytes[65535];
    if ( poll( &waiting, 1, milliseconds ) != 1 )
        return NULL;
    ssize_t length = recv( client->socket, bytes, sizeof bytes, 0 );
    if ( length < 0 )
        return NULL;
    RT_BUFFER buffer = rtBufferCreateFromBytesCopy( bytes, length );
    TELSX_MESSAGE msg = telsxMessageTryDecode( buffer );
    rtBufferRelease( buffer );
    RT_STRING itsBranch = msg && !telsxMessageIsRequest( msg ) ? branchOf( msg ) : NULL;
    bool ours = itsBranch && rtStringEquals( itsBranch, branch );
    clientRelease( itsBranch );
    if ( ours )
        return msg;
    clientRelease( msg );
    return NULL;
}

/* The ACK of a response that is not a 2xx (RFC 3261, 17.1.1.3). */
static TELSX_MESSAGE acknowledgement( TELSX_MESSAGE request, TELSX_MESSAGE response )
{
    TELSX_VERSION version = telsxMessageVersion( request );
    RT_STRING target = telsxMessageRequestIri( request ), method = clientText( "ACK" );
    TELSX_MESSAGE msg = telsxMessageCreateRequest( version, method, target );
    static const char *const names[] = { "Via", "Route", "Max-Forwards", "From", "Call-Id" };
    for ( size_t i = 0; i < sizeof names / sizeof *names; ++i )
        clientTakeOver( &msg, request, names[i] );
    clientTakeOver( &msg, response, "To" );
    TELSX_HEADER_CSEQ cseq = telsxHeaderCseqTryDecodeFromMessage( request );
    telsxHeaderCseqSetMethod( &cseq, method );
    telsxHeaderCseqEncodeToMessage( cseq, &msg );
    clientRelease( cseq );
    clientRelease( method );
    clientRelease( target );
    clientRelease( version );
    return msg;
}

static int64_t now( void )
{
    struct timespec time;
    clock_gettime( CLOCK_MONOTONIC, &time );
    return (int64_t)time.tv_sec * 1000 + time.tv_nsec / 1000000;
}

/* One transaction: the final response, a new reference, or null. */
static TELSX_MESSAGE transact( CLIENT *client, TELSX_MESSAGE *request )
{
    clientSetNewBranch( request );
    RT_STRING branch = branchOf( *request );
    char *method = toUtf8( telsxMessageRequestMethod( *request ) );
    bool invites = strcmp( method, "INVITE" ) == 0;
    free( method );
    clientSend( client, *request );
    enum
    {
        first = 500,
        longest = 4000,
        patience = 32000,
        ringing = 180000
    };
    int64_t pause = first, again = now() + pause, end = now() + patience;
    TELSX_MESSAGE response = NULL;
    bool final = false;
    while ( !final && now() < end )
    {
        int64_t until = again < end ? again : end;
        clientRelease( response );
        response = receive( client, branch, until > now() ? (int)( until - now() ) : 0 );
        if ( response )
        {
            clientShow( response );
            final = telsxMessageResponseStatusCode( response ) >= 200;
            if ( !final && invites )
                again = end = now() + ringing;
        }
        else if ( now() >= again )
        {
            sendBytes( client, *request );
            pause = invites || 2 * pause < longest ? 2 * pause : longest;
            again = now() + pause;
        }
    }
    if ( final && invites && telsxMessageResponseStatusCode( response ) >= 300 )
    {
        TELSX_MESSAGE ack = acknowledgement( *request, response );
        clientSend( client, ack );
        clientRelease( ack );
    }
    clientRelease( branch );
    if ( final )
        return response;
    clientRelease( response );
    return NULL;
}

/* Whether the qualities of protection include plain authentication. */
static bool offersAuth( char *options )
{
    bool found = false;
    for ( char *rest = options, *option; ( option = strtok_r( rest, ", \t", &rest ) ); )
        found = found || strcasecmp( option, "auth" ) == 0;
    return found;
}

/* How strong the challenge's algorithm is; 0 if the challenge can't be answered. */
static int strengthOf( TELSX_CHALLENGE challenge )
{
    char *scheme = toUtf8( telsxChallengeScheme( challenge ) ),
         *algorithm = toUtf8( telsxChallengeAlgorithm( challenge ) ),
         *options = toUtf8( telsxChallengeQopOptions( challenge ) );
    bool good = strcasecmp( scheme, "Digest" ) == 0 && telsxChallengeHasRealm( challenge )
                && telsxChallengeHasNonce( challenge ) && ( !options || offersAuth( options ) );
    int strength = good ? digestStrength( algorithm ) : 0;
    free( options );
    free( algorithm );
    free( scheme );
    return strength;
}

/* The strongest of the response's challenges, a new reference, or null if none can be answered. */
static TELSX_CHALLENGE strongest( TELSX_MESSAGE response, bool fromProxy )
{
    TELSX_HEADER_PROXY_AUTHENTICATE proxys =
        fromProxy ? telsxHeaderProxyAuthenticateTryDecodeFromMessage( response ) : NULL;
    TELSX_HEADER_WWW_AUTHENTICATE servers =
        fromProxy ? NULL : telsxHeaderWwwAuthenticateTryDecodeFromMessage( response );
    int64_t length = proxys    ? telsxHeaderProxyAuthenticateChallengesLength( proxys )
                     : servers ? telsxHeaderWwwAuthenticateChallengesLength( servers )
                               : 0;
    TELSX_CHALLENGE best = NULL;
    for ( int64_t i = 0; i < length; ++i )
    {
        TELSX_CHALLENGE next = proxys ? telsxHeaderProxyAuthenticateTryDecodeChallengeAt( proxys, i )
                                      : telsxHeaderWwwAuthenticateTryDecodeChallengeAt( servers, i );
        bool better = next && strengthOf( next ) > ( best ? strengthOf( best ) : 0 );
        clientRelease( better ? best : next );
        if ( better )
            best = next;
    }
    clientRelease( proxys );
    clientRelease( servers );
    return best;
}

/* Takes the text. */
static void setText( TELSX_CREDENTIALS *credentials, void ( *set )( TELSX_CREDENTIALS *, RT_STRING ),
                     RT_STRING text )
{
    if ( text )
        set( credentials, text );
    clientRelease( text );
}

/* What answers the challenge (RFC 7616, 3.4), a new reference. */
static TELSX_CREDENTIALS credentialsFor( CLIENT *client, TELSX_CHALLENGE challenge, TELSX_MESSAGE request )
{
    RT_STRING target = telsxMessageRequestIri( request ), digest = clientText( "Digest" );
    char *algorithm = toUtf8( telsxChallengeAlgorithm( challenge ) ),
         *realm = toUtf8( telsxChallengeRealm( challenge ) ),
         *nonce = toUtf8( telsxChallengeNonce( challenge ) ),
         *method = toUtf8( telsxMessageRequestMethod( request ) ),
         *uri = toUtf8( rscTryConvertToUri( target ) ), *cnonce = toUtf8( clientRandomText() );
    client->count = strcmp( nonce, client->nonce ) == 0 ? client->count + 1 : 1;
    snprintf( client->nonce, sizeof client->nonce, "%s", nonce );
    char count[9], response[digestSize];
    snprintf( count, sizeof count, "%08x", client->count );
    DIGEST parts = {
        algorithm, client->user, realm, client->password, method, uri, nonce, NULL, count, cnonce
    };
    if ( telsxChallengeHasQopOptions( challenge ) )
        parts.qop = "auth";
    digestResponse( &parts, response );

    TELSX_CREDENTIALS made = telsxCredentialsCreate( digest );
    setText( &made, telsxCredentialsSetUsername, clientText( client->user ) );
    setText( &made, telsxCredentialsSetRealm, telsxChallengeRealm( challenge ) );
    setText( &made, telsxCredentialsSetNonce, telsxChallengeNonce( challenge ) );
    setText( &made, telsxCredentialsSetUri, clientText( uri ) );
    setText( &made, telsxCredentialsSetResponse, clientText( response ) );
    setText( &made, telsxCredentialsSetAlgorithm, telsxChallengeAlgorithm( challenge ) );
    setText( &made, telsxCredentialsSetOpaque, telsxChallengeOpaque( challenge ) );
    setText( &made, telsxCredentialsSetCnonce, clientText( cnonce ) );
    if ( parts.qop )
    {
        setText( &made, telsxCredentialsSetQop, clientText( parts.qop ) );
        setText( &made, telsxCredentialsSetNonceCount, clientText( count ) );
    }
    free( cnonce );
    free( uri );
    free( method );
    free( nonce );
    free( realm );
    free( algorithm );
    clientRelease( digest );
    clientRelease( target );
    return made;
}

/* Whether the request is to be sent again, now with credentials: the response asks for some that it didn't have, or says
 * that those were right but stale. */
static bool answerChallenge( CLIENT *client, TELSX_MESSAGE *request, TELSX_MESSAGE response )
{
    bool fromProxy = telsxMessageResponseStatusCode( response ) == 407;
    bool tried = fromProxy ? telsxHeaderProxyAuthorizationPresentInMessage( *request )
                           : telsxHeaderAuthorizationPresentInMessage( *request );
    TELSX_CHALLENGE challenge = strongest( response, fromProxy );
    TELSX_HEADER_CSEQ cseq = telsxHeaderCseqTryDecodeFromMessage( *request );
    bool answers = challenge && ( !tried || telsxChallengeStale( challenge ) );
    if ( answers )
    {
        TELSX_CREDENTIALS credentials = credentialsFor( client, challenge, *request );
        TELSX_HEADER_PROXY_AUTHORIZATION forProxy = telsxHeaderProxyAuthorizationCreate();
        TELSX_HEADER_AUTHORIZATION forServer = telsxHeaderAuthorizationCreate();
        telsxHeaderProxyAuthorizationAppendCredential( &forProxy, credentials );
        telsxHeaderAuthorizationAppendCredential( &forServer, credentials );
        if ( fromProxy )
            telsxHeaderProxyAuthorizationEncodeToMessage( forProxy, request );
        else
            telsxHeaderAuthorizationEncodeToMessage( forServer, request );
        clientRelease( forServer );
        clientRelease( forProxy );
        clientRelease( credentials );
        telsxHeaderCseqSetCseq( &cseq, telsxHeaderCseqCseq( cseq ) + 1 );
        telsxHeaderCseqEncodeToMessage( cseq, request );
    }
    clientRelease( cseq );
    clientRelease( challenge );
    return answers;
}

TELSX_MESSAGE clientExchange( CLIENT *client, TELSX_MESSAGE *request )
{
    /* A server's, a proxy's, and each once more if it is stale. */
    for ( int challenges = 4;; --challenges )
    {
        TELSX_MESSAGE response = transact( client, request );
        int64_t statusCode = response ? telsxMessageResponseStatusCode( response ) : 0;
        bool again = client->user && challenges > 0 && ( statusCode == 401 || statusCode == 407 )
                     && answerChallenge( client, request, response );
        if ( !again )
            return response;
        clientRelease( response );
    }
}
