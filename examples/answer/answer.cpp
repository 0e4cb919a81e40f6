// Answers calls: a SIP user agent server on UDP and TCP (RFC 3261, 8.2).
//
//     answer [--bind ADDRESS] [--port PORT] [--ring MILLISECONDS]
//
// ADDRESS, 127.0.0.1 unless told, is an IP address of this machine, at which others reach it; port 0 picks one.
// The first line on standard output tells both. An INVITE rings for the time (1000) and is taken then, unless
// its caller cancels it; a REGISTER binds addresses as a registrar does. SIGINT and SIGTERM end it.
#include <cerrno>

#include <strings.h>

#include "calls.hpp"
#include "registrar.hpp"
#include "responses.hpp"

namespace
{

// The status code with which to refuse the request, or 0: what must be looked at before anything is done with it.
int64_t refusal( const Request &request )
{
    TELSX_MESSAGE message = request.message.get();
    if ( !telsxVersionIsSip20( Owned( telsxMessageVersion( message ) ).get() ) )
        return 505;
    Owned require( telsxHeaderRequireTryDecodeFromMessage( message ) );
    if ( request.number == -1 || ( !require && telsxHeaderRequirePresentInMessage( message ) ) )
        return 400;
    if ( request.method == "CANCEL" )
        return 0; // it has the Request-URI of its INVITE, and no Require (RFC 3261, 9.1)
    if ( strcasecmp( request.scheme.c_str(), "sip" ) != 0
         && strcasecmp( request.scheme.c_str(), "sips" ) != 0 )
        return 416;
    if ( require && telsxHeaderRequireOptionTagsLength( require.get() ) > 0 )
        return 420;
    return 0;
}

// Gives each request to the part that knows what to do with it.
class Server
{
public:
    Server( Network &to, const SocketAddress &here, std::chrono::milliseconds ring )
        : network( to ), calls( to, here, ring )
    {
    }

    void receive( Message message, const Peer &peer )
    {
        std::optional<Request> request = toRequest( std::move( message ), peer );
        if ( !request )
            return;
        const std::string &method = request->method;
        if ( method == "ACK" )
            return calls.acknowledge( *request ); // which nothing answers, not even when it is bad
        if ( int64_t statusCode = refusal( *request ) )
            return send( *request, refuse( *request, statusCode ) );
        if ( method == "CANCEL" )
            return calls.cancel( *request );
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
        addAllow( response );
        addAccept( response );
        send( *request, response );
    }

    // As in Calls.
    int tick() { return calls.tick(); }

private:
    void send( const Request &request, const Message &response )
    {
        network.send( request.peer, encode( response ) );
    }

    Network &network;
    Calls calls;
    Registrar registrar;
};

// The number that the text is, or -1.
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
    int64_t port = 5060, ring = 1000;
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
        else
            good = false;
    }
    // The calls' Contact is the address, and that is not "any".
    if ( !good || address.host() == "0.0.0.0" || address.host() == "::" )
    {
        std::cerr << "usage: answer [--bind ADDRESS] [--port PORT] [--ring MILLISECONDS]\n";
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

    Server server( network, address, std::chrono::milliseconds( ring ) );
    auto receive = [&server]( Message message, const Peer &peer )
    { server.receive( std::move( message ), peer ); };
    while ( network.wait( server.tick(), receive ) )
        continue;
    return 0;
}
