// Answers calls: a SIP user agent server on UDP and TCP (RFC 3261, 8.2).
//
//     answer [--bind ADDRESS] [--port PORT] [--ring MILLISECONDS]
//            [--user NAME --password PASSWORD [--algorithm NAME] [--stale SECONDS]]
//
// ADDRESS, by default 127.0.0.1, is an IP address of this machine at which others can reach it; port 0 picks one. The
// first line on standard output gives both. An INVITE rings for the time (by default 1000) and is then accepted, unless
// its caller cancels it; a REGISTER binds addresses as a registrar does. SIGINT and SIGTERM end the program.
//
// With a user, INVITE and REGISTER need that name and password (digest, RFC 7616): SHA-256 and MD5 are offered, or only
// the algorithm, since some clients give up at the first that they don't know. A nonce is stale after 300 seconds, or
// those given. Both arguments are visible to others on this machine, so this is for trying things out.
//
// Limits, and what happens beyond them:
//
//     bytes of a message            65,535   by TCP 513, and the connection ends
//     TCP connections               256      one that has never sent a message is closed, or else the quietest
//     seconds to the first message  10       the connection is closed
//     INVITEs without an ACK        50,000   503 with Retry-After; also for more than 128 MiB of responses to them
//     calls                         200,000  those that are over give way; 503 with Retry-After
//     hours of a call               24       it is forgotten
//     registrations                 10,000   503 with Retry-After
//     registrations of one sender   1,000    the sender's oldest gives way; a sender is an IPv4 address or an IPv6 /64
//     contacts of an address        5        503 with Retry-After
//     bytes of an address           200      404 for an address of record, 403 for a contact
//     seconds of a registration     3,600    it is shortened
//     uses of nonces                10,000   the oldest nonce becomes stale
//     bytes of a REGISTER's response by UDP: five times those of the request; 500
#include <cerrno>

#include "../digest.h"
#include "authentication.hpp"
#include "calls.hpp"
#include "registrar.hpp"
#include "responses.hpp"

namespace
{

// Whether the header occurs in two lines. Then nothing tells which one the sender means.
bool isAmbiguous( const Request &request, const char *name )
{
    Owned header( telsxMessageHeaderCstr( request.message.get(), name, -1 ) );
    return header && telsxMessageHeaderLinesLength( header.get() ) > 1;
}

// Whether the body is compressed; also true if that can't be read.
bool isEncoded( TELSX_MESSAGE message )
{
    Owned header( telsxHeaderContentEncodingTryDecodeFromMessage( message ) );
    int64_t length = header ? telsxHeaderContentEncodingContentCodingsLength( header.get() ) : 0;
    for ( int64_t i = 0; i < length; ++i )
        if ( toUtf8( Owned( telsxHeaderContentEncodingContentCodingAt( header.get(), i ) ) ) != "identity" )
            return true;
    return !header && telsxHeaderContentEncodingPresentInMessage( message );
}

// Whether the sender understands session descriptions. Without Accept it does (RFC 3261, 20.1).
bool acceptsSession( TELSX_MESSAGE message )
{
    Owned header( telsxHeaderAcceptTryDecodeFromMessage( message ) );
    int64_t length = header ? telsxHeaderAcceptAcceptsLength( header.get() ) : 0;
    for ( int64_t i = 0; i < length; ++i )
    {
        Owned accept( telsxHeaderAcceptTryDecodeAcceptAt( header.get(), i ) );
        if ( !accept || telsxAcceptQvalue( accept.get() ) == 0 )
            continue;
        Owned type( telsxAcceptMediaType( accept.get() ) ),
            subtype( telsxAcceptMediaSubtype( accept.get() ) );
        if ( ( !type || toUtf8( type ) == "application" ) && ( !subtype || toUtf8( subtype ) == "sdp" ) )
            return true;
    }
    return !header && !telsxHeaderAcceptPresentInMessage( message );
}

// The status code that refuses the request before anything is done with it, or 0 (RFC 3261, 8.2).
int64_t refusal( const Request &request )
{
    TELSX_MESSAGE message = request.message.get();
    const std::string &method = request.method;
    if ( !telsxVersionIsSip20( Owned( telsxMessageVersion( message ) ).get() ) )
        return 505;
    if ( request.statusCode )
        return request.statusCode;
    // A peer that takes a lone CR or LF for a line end would see another message.
    if ( request.number == -1 || telsxMessageHasLoneLineEnds( message ) )
        return 400;
    for ( const char *name : { "To", "From", "Cseq", "Call-Id", "Max-Forwards", "Content-Type" } )
        if ( isAmbiguous( request, name ) )
            return 400;
    Owned require( telsxHeaderRequireTryDecodeFromMessage( message ) );
    if ( !require && telsxHeaderRequirePresentInMessage( message ) )
        return 400;
    if ( method == "CANCEL" )
        return 0; // it has the Request-URI of its INVITE, and no Require (RFC 3261, 9.1)
    if ( !request.target )
        return 416;
    if ( require && telsxHeaderRequireOptionTagsLength( require.get() ) > 0 )
        return 420;
    if ( isEncoded( message ) )
        return 415;
    if ( ( method == "INVITE" || method == "OPTIONS" ) && !acceptsSession( message ) )
        return 406;
    return 0;
}

// Passes each request to the part that handles it.
class Server
{
public:
    Server( Network &to, const SocketAddress &here, std::chrono::milliseconds ring,
            std::optional<Authentication> asked )
        : network( to ), calls( to, here, ring ), authentication( std::move( asked ) )
    {
    }

    void receive( Arrival arrival )
    {
        std::optional<Request> request = toRequest( std::move( arrival ) );
        if ( !request )
            return;
        const std::string &method = request->method;
        if ( method == "ACK" )
            return calls.acknowledge( *request ); // nothing answers it, not even if it is bad
        if ( int64_t statusCode = refusal( *request ) )
            return send( *request, refuse( *request, statusCode ) );
        if ( method == "CANCEL" )
            return calls.cancel( *request );
        // ACK and CANCEL can't be sent again with credentials, and who may begin a call may end it (RFC 3261, 22.1).
        if ( authentication && ( method == "INVITE" || method == "REGISTER" ) )
            if ( std::optional<Message> refused = authentication->refuse( *request ) )
                return send( *request, *refused );
        if ( method == "INVITE" )
            return calls.invite( *request );
        if ( method == "REGISTER" )
            return send( *request, registrar.bind( *request ) );
        if ( ( method == "BYE" || !request->tag.empty() ) && !calls.follows( *request ) )
            return;
        if ( method == "BYE" )
            return calls.bye( *request );
        if ( method != "OPTIONS" )
            return send( *request, refuse( *request, 405 ) );
        Message response = respond( *request, 200 );
        addCapabilities( response );
        send( *request, response );
    }

    // As in Calls.
    Clock::time_point tick() { return calls.tick(); }

private:
    void send( const Request &request, const Message &response )
    {
        network.send( request.peer, encode( response ) );
    }

    Network &network;
    Calls calls;
    Registrar registrar;
    std::optional<Authentication> authentication;
};

// The number that the text stands for, or -1.
int64_t toNumber( const char *text, int64_t most )
{
    String digits = toString( text );
    int64_t number, length;
    bool good = digits && rtStringScanInt( digits.get(), 0, -1, 10, &number, &length )
                && length == rtStringLength( digits.get() ) && number >= 0 && number <= most;
    return good ? number : -1;
}

} // namespace

int main( int argc, char **argv )
{
    Library library;
    SocketAddress address;
    int64_t port = 5060, ring = 1000, stale = 300;
    const char *user = nullptr, *password = nullptr;
    std::vector<std::string> algorithms = { "SHA-256", "MD5" };
    bool good = address.setHost( "127.0.0.1" ) && argc % 2 == 1;
    for ( int i = 1; good && i < argc; i += 2 )
    {
        std::string_view word = argv[i];
        if ( word == "--bind" )
            good = address.setHost( argv[i + 1] );
        else if ( word == "--port" )
            good = ( port = toNumber( argv[i + 1], 0xFFFF ) ) != -1;
        else if ( word == "--ring" )
            good = ( ring = toNumber( argv[i + 1], 60000 ) ) != -1;
        else if ( word == "--user" )
            good = bool( toString( user = argv[i + 1] ) );
        else if ( word == "--password" )
            good = bool( toString( password = argv[i + 1] ) );
        else if ( word == "--algorithm" )
            good = digestStrength( ( algorithms = { argv[i + 1] } ).front().c_str() ) > 0;
        else if ( word == "--stale" )
            good = ( stale = toNumber( argv[i + 1], 86400 ) ) != -1;
        else
            good = false;
    }
    good = good && !user == !password;
    // The calls' Contact is this address, which must not be "any".
    if ( !good || address.host() == "0.0.0.0" || address.host() == "::" )
    {
        std::cerr << "usage: answer [--bind ADDRESS] [--port PORT] [--ring MILLISECONDS]\n"
                     "              [--user NAME --password PASSWORD [--algorithm NAME] [--stale SECONDS]]\n";
        return 2;
    }
    address.setPort( port );
    Network network;
    if ( !network.open( address ) )
    {
        std::cerr << "answer: " << address.host() << ' ' << port << ": " << std::strerror( errno ) << '\n';
        return 1;
    }
    std::cout << "answering at " << address.host() << ' ' << address.port() << std::endl;

    std::optional<Authentication> authentication;
    if ( user )
        authentication.emplace( user, password, algorithms, std::chrono::seconds( stale ) );
    Server server( network, address, std::chrono::milliseconds( ring ), std::move( authentication ) );
    auto receive = [&server]( Arrival arrival ) { server.receive( std::move( arrival ) ); };
    while ( network.wait( server.tick(), receive ) )
        continue;
    return 0;
}
