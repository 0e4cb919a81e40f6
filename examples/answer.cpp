// Answers calls: a SIP user agent server on UDP and TCP (RFC 3261, 8.2).
//
//     answer [--bind ADDRESS] [--port PORT] [--ring MILLISECONDS]
//
// ADDRESS, 127.0.0.1 unless told, is an IP address of this machine, at which others reach it; port 0 picks one.
// The first line on standard output tells both. An INVITE rings for the time (1000) and is taken then, unless
// its caller cancels it; a REGISTER binds addresses as a registrar does. SIGINT and SIGTERM end it.
#include <chrono>
#include <optional>
#include <random>

#include "sockets.hpp"

namespace
{

using To = Owned<TELSX_HEADER_TO>;
using Vias = Owned<TELSX_HEADER_VIA>;

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

// A request that can be answered: what its answers take over is there and good.
struct Request
{
    Message message;
    Peer peer = {};
    std::string method = {};
    Vias vias = {};
    Owned<TELSX_HEADER_FROM> from = {};
    To to = {};
    Owned<TELSX_HEADER_CALL_ID> callId = {};
    Owned<TELSX_HEADER_CSEQ> cseq = {};
    int64_t number = 0;   // in Cseq
    std::string tag = {}; // of this side, made of Call-Id and From, so that it stands for the call
};

// Notes in the top Via where the request came from (RFC 3261, 18.2.1, and RFC 3581, 4), and in peer where the
// answers to a datagram go (RFC 3261, 18.2.2, but for maddr: it would send them anywhere). False without a good
// Via.
bool noteSource( Vias &vias, Peer &peer )
{
    Owned top( telsxHeaderViaViasLength( vias.get() ) ? telsxHeaderViaTryDecodeViaAt( vias.get(), 0 )
                                                      : nullptr );
    if ( !top )
        return false;
    String host = toString( peer.address.host() );
    bool asked = telsxViaHasRportEmpty( top.get() );
    if ( asked || !rtStringEquals( Owned( telsxViaHost( top.get() ) ).get(), host.get() ) )
    {
        Owned address(
            netAddressTryCreateFromChars( rtStringBacking( host.get() ), rtStringLength( host.get() ) ) );
        telsxViaSetReceived( top.address(), address.get() );
    }
    if ( asked )
        telsxViaSetRportNumeric( top.address(), peer.address.port() );
    else if ( peer.connection == 0 )
        peer.address.setPort( telsxViaHasPort( top.get() ) ? telsxViaPort( top.get() ) : 5060 );
    telsxHeaderViaSetViaAt( vias.address(), 0, top.get() );
    return true;
}

// The same token for all requests of a call, and another one for each other call (FNV-1a, from a start that
// differs each time that the program runs).
std::string toTag( const std::string &text )
{
    static const uint64_t start = uint64_t( std::random_device{}() ) << 32 | std::random_device{}();
    uint64_t hash = start;
    for ( char ch : text )
        hash = ( hash ^ static_cast<unsigned char>( ch ) ) * 0x100000001B3;
    char hex[17];
    std::snprintf( hex, sizeof hex, "%016llx", static_cast<unsigned long long>( hash ) );
    return hex;
}

std::string tagOf( const To &to )
{
    return telsxHeaderToHasTag( to.get() ) ? toUtf8( Owned( telsxHeaderToTag( to.get() ) ) ) : "";
}

std::optional<Request> toRequest( Message message, const Peer &peer )
{
    if ( !telsxMessageIsRequest( message.get() ) )
        return std::nullopt; // this side sends no requests, so nothing waits for it
    TELSX_MESSAGE handle = message.get();
    Request request{ std::move( message ), peer };
    request.vias = Owned( telsxHeaderViaTryDecodeFromMessage( handle ) );
    request.from = Owned( telsxHeaderFromTryDecodeFromMessage( handle ) );
    request.to = Owned( telsxHeaderToTryDecodeFromMessage( handle ) );
    request.callId = Owned( telsxHeaderCallIdTryDecodeFromMessage( handle ) );
    request.cseq = Owned( telsxHeaderCseqTryDecodeFromMessage( handle ) );
    if ( !request.vias || !request.from || !request.to || !request.callId || !request.cseq
         || !noteSource( request.vias, request.peer ) )
        return std::nullopt;
    request.method = toUtf8( Owned( telsxMessageRequestMethod( handle ) ) );
    request.number = telsxHeaderCseqCseq( request.cseq.get() );
    Owned caller( telsxHeaderFromTag( request.from.get() ) );
    request.tag = toTag( toUtf8( Owned( telsxHeaderCallIdCallId( request.callId.get() ) ) ) + '\n'
                         + ( caller ? toUtf8( caller ) : "" ) );
    return request;
}

// What every response begins with (RFC 3261, 8.2.6).
Message respond( const Request &request, int64_t statusCode )
{
    Owned version( telsxVersionCreateSip20() );
    Owned response( telsxMessageCreateResponse( version.get(), statusCode ) );
    telsxHeaderViaEncodeToMessage( request.vias.get(), response.address() );
    telsxHeaderFromEncodeToMessage( request.from.get(), response.address() );
    To to = request.to;
    if ( statusCode != 100 && !telsxHeaderToHasTag( to.get() ) )
        telsxHeaderToSetTag( to.address(), toString( request.tag ).get() );
    telsxHeaderToEncodeToMessage( to.get(), response.address() );
    telsxHeaderCallIdEncodeToMessage( request.callId.get(), response.address() );
    telsxHeaderCseqEncodeToMessage( request.cseq.get(), response.address() );
    return response;
}

std::string encode( const Message &message )
{
    return toBytes( Owned( telsxMessageEncode( message.get() ) ) );
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

// There is no type for Content-Type: its line is set as it is. The session is one without sound.
void addSession( Message &response, const SocketAddress &address )
{
    Owned type( telsxMessageHeaderCreateCstr( "Content-Type", -1 ) );
    telsxMessageHeaderAppendLineCstr( type.address(), "application/sdp", -1 );
    telsxMessageSetHeader( response.address(), type.get() );
    std::string host = ( address.isV6() ? "IN IP6 " : "IN IP4 " ) + address.host();
    std::string session = "v=0\r\no=answer 1 1 " + host + "\r\ns=-\r\nc=" + host
                          + "\r\nt=0 0\r\nm=audio 9 RTP/AVP 0\r\na=inactive\r\n";
    telsxMessageSetBody( response.address(), toBuffer( session ).get() );
}

// The calls, which are known by their tags, and the registrations.
class Answerer
{
public:
    Answerer( Network &to, const SocketAddress &here, std::chrono::milliseconds ring )
        : network( to ), address( here ), ringTime( ring )
    {
    }

    void receive( Message message, const Peer &peer )
    {
        std::optional<Request> request = toRequest( std::move( message ), peer );
        if ( !request )
            return;
        const std::string &method = request->method;
        if ( method == "ACK" )
            return acknowledge( *request ); // which nothing answers, not even when it is bad
        Owned version( telsxMessageVersion( request->message.get() ) );
        if ( !telsxVersionIsSip20( version.get() ) )
            return answer( *request, 505 );
        if ( toUtf8( Owned( telsxHeaderCseqMethod( request->cseq.get() ) ) ) != method )
            return answer( *request, 400 );
        if ( method == "CANCEL" )
            return cancel( *request );
        if ( telsxHeaderRequirePresentInMessage( request->message.get() ) )
            return refuseExtensions( *request );
        if ( method == "INVITE" )
            return invite( *request );
        if ( method == "BYE" )
            return bye( *request );
        if ( method == "REGISTER" )
            return bind( *request );
        Message response = respond( *request, method == "OPTIONS" ? 200 : 405 );
        addAllow( response );
        if ( method == "OPTIONS" )
            addAccept( response );
        send( *request, response );
    }

    // Takes the calls that have rung for long enough and sends final responses again that nobody has
    // acknowledged (RFC 3261, 13.3.1.4 and 17.2.1). Returns in how many milliseconds it is to be called again.
    int tick()
    {
        auto now = Clock::now();
        for ( auto at = invites.begin(); at != invites.end(); )
        {
            Invite &invite = at->second;
            if ( now >= invite.end )
            {
                at = invites.erase( at );
                continue;
            }
            if ( now >= invite.due && !invite.final )
                finish( at->first, invite, true );
            else if ( now >= invite.due )
            {
                network.send( invite.peer, invite.response );
                invite.pause = std::min<Clock::duration>( 2 * invite.pause, 4s );
                invite.due = now + invite.pause;
            }
            ++at;
        }
        if ( calls.size() + invites.size() >= maxCalls )
            forget( calls, now );
        return invites.empty() ? 1000 : 20;
    }

private:
    static constexpr Clock::duration t1 = 500ms, patience = 64 * t1; // RFC 3261, 17.1.1.1
    static constexpr std::size_t maxInvites = 2000, maxCalls = 20000;
    static constexpr std::size_t maxRegistrations = 500, maxContacts = 10; // of one
    static constexpr int64_t maxExpires = 3600;                            // seconds

    // An INVITE until its ACK. Its responses are kept as bytes, which are smaller than what they are made from.
    struct Invite
    {
        int64_t number;
        Peer peer;
        std::string response;         // the last one that was sent
        std::string taken, cancelled; // what the final one may be
        Clock::time_point due;        // when it is taken, then when the response is sent again
        Clock::time_point end = Clock::time_point::max();
        Clock::duration pause = t1;
        bool final = false;
    };

    // A call from its final response on and a while beyond its BYE, since that may come twice. It may be
    // forgotten at the end, which is an hour after the ACK for a call without a BYE.
    struct Call
    {
        int64_t number; // of its last INVITE
        bool up;
        Clock::time_point end;
    };

    // The contacts of an address and until when each holds; the end is not before theirs.
    struct Registration
    {
        std::map<std::string, Clock::time_point> contacts;
        Clock::time_point end;
    };

    template <class TABLE>
    static void forget( TABLE &table, Clock::time_point now )
    {
        for ( auto at = table.begin(); at != table.end(); )
            at = now >= at->second.end ? table.erase( at ) : std::next( at );
    }

    void send( const Request &request, const Message &response )
    {
        network.send( request.peer, encode( response ) );
    }

    // With the seconds after which another try may do better, if there are any.
    void answer( const Request &request, int64_t statusCode, int64_t retryAfter = 0 )
    {
        Message response = respond( request, statusCode );
        if ( Owned header{ retryAfter ? telsxHeaderRetryAfterCreate( retryAfter ) : nullptr } )
            telsxHeaderRetryAfterEncodeToMessage( header.get(), response.address() );
        send( request, response );
    }

    // None is understood here (RFC 3261, 8.2.2.3).
    void refuseExtensions( const Request &request )
    {
        Owned require( telsxHeaderRequireTryDecodeFromMessage( request.message.get() ) );
        if ( !require )
            return answer( request, 400 );
        Owned unsupported( telsxHeaderUnsupportedCreate() );
        Owned tags( telsxHeaderRequireOptionTagsVector( require.get() ) );
        telsxHeaderUnsupportedSetOptionTagsVector( unsupported.address(), tags.get() );
        Message response = respond( request, 420 );
        telsxHeaderUnsupportedEncodeToMessage( unsupported.get(), response.address() );
        send( request, response );
    }

    // A response that makes a dialog (RFC 3261, 12.1.1).
    Message respondInDialog( const Request &request, int64_t statusCode )
    {
        Message response = respond( request, statusCode );
        if ( Owned routes{ telsxHeaderRecordRouteTryDecodeFromMessage( request.message.get() ) } )
            telsxHeaderRecordRouteEncodeToMessage( routes.get(), response.address() );
        std::string iri = "sip:" + ( address.isV6() ? "[" + address.host() + "]" : address.host() ) + ":"
                          + std::to_string( address.port() )
                          + ( request.peer.connection ? ";transport=tcp" : "" );
        Owned contact( telsxContactCreate( toString( iri ).get() ) );
        Owned contacts( telsxHeaderContactCreate() );
        telsxHeaderContactAppendContact( contacts.address(), contact.get() );
        telsxHeaderContactEncodeToMessage( contacts.get(), response.address() );
        addAllow( response );
        return response;
    }

    void invite( const Request &request )
    {
        auto pending = invites.find( request.tag );
        auto call = calls.find( request.tag );
        bool up = call != calls.end() && call->second.up;
        bool inDialog = telsxHeaderToHasTag( request.to.get() );
        if ( pending != invites.end() && pending->second.number == request.number )
            return network.send( pending->second.peer, pending->second.response ); // it came twice
        if ( call != calls.end() && call->second.number == request.number )
            return; // a late copy of one that is acknowledged
        if ( pending != invites.end() )
            return answer( request, 500, 5 ); // one after the other (RFC 3261, 14.2)
        if ( inDialog && ( !up || tagOf( request.to ) != request.tag ) )
            return answer( request, 481 );
        if ( inDialog && request.number < call->second.number )
            return answer( request, 500 );
        if ( !inDialog && up )
            return answer( request, 482 ); // it came on two ways (RFC 3261, 8.2.2.2)
        if ( invites.size() >= maxInvites || calls.size() + invites.size() >= maxCalls )
            return answer( request, 503, 10 );

        Message taken = respondInDialog( request, 200 );
        addSession( taken, address );
        Invite &next = invites[request.tag];
        next.number = request.number;
        next.peer = request.peer;
        next.response = encode( respondInDialog( request, 180 ) );
        next.taken = encode( taken );
        next.cancelled = encode( respond( request, 487 ) );
        next.due = Clock::now() + ringTime;
        if ( inDialog )
            return finish( request.tag, next, true ); // a change of the session doesn't ring
        answer( request, 100 );
        network.send( next.peer, next.response );
    }

    void finish( const std::string &tag, Invite &invite, bool taken )
    {
        auto now = Clock::now();
        invite.response = std::move( taken ? invite.taken : invite.cancelled );
        invite.final = true;
        invite.end = now + patience;
        // A connection loses nothing, but behind it a 200 may be on its way by UDP.
        invite.due = taken || invite.peer.connection == 0 ? now + invite.pause : invite.end;
        calls[tag] = { invite.number, taken, invite.end };
        network.send( invite.peer, invite.response );
    }

    void acknowledge( const Request &request )
    {
        auto at = invites.find( request.tag );
        if ( at == invites.end() || at->second.number != request.number || !at->second.final )
            return;
        invites.erase( at );
        if ( auto call = calls.find( request.tag ); call != calls.end() && call->second.up )
            call->second.end = Clock::now() + 1h;
    }

    void cancel( const Request &request )
    {
        auto at = invites.find( request.tag );
        if ( at == invites.end() || at->second.number != request.number )
            return answer( request, 481 );
        answer( request, 200 );
        if ( !at->second.final )
            finish( at->first, at->second, false );
    }

    void bye( const Request &request )
    {
        auto pending = invites.find( request.tag );
        auto call = calls.find( request.tag );
        bool ringing = pending != invites.end() && !pending->second.final;
        if ( tagOf( request.to ) != request.tag || ( !ringing && call == calls.end() ) )
            return answer( request, 481 );
        answer( request, 200 );
        if ( ringing )
            return finish( request.tag, pending->second, false );
        if ( pending != invites.end() )
            invites.erase( pending );
        call->second.up = false;
        call->second.end = Clock::now() + patience;
    }

    // A registrar (RFC 3261, 10.3), which remembers of a contact its address and until when it holds.
    void bind( const Request &request )
    {
        TELSX_MESSAGE message = request.message.get();
        auto now = Clock::now();
        forget( registrations, now );
        std::string who = toUtf8( Owned( telsxHeaderToIri( request.to.get() ) ) );
        auto known = registrations.find( who );
        // What is changed is a copy, which counts when all of the request is good.
        Registration next;
        if ( known != registrations.end() )
            next = known->second;
        next.end = now + std::chrono::seconds( maxExpires );

        Owned contacts( telsxHeaderContactTryDecodeFromMessage( message ) );
        Owned expires( telsxHeaderExpiresTryDecodeFromMessage( message ) );
        int64_t usual = expires ? telsxHeaderExpiresDeltaSeconds( expires.get() ) : maxExpires;
        bool star = contacts && telsxHeaderContactIsStarForm( contacts.get() );
        if ( ( !contacts && telsxHeaderContactPresentInMessage( message ) ) || ( star && usual != 0 ) )
            return answer( request, 400 );
        if ( star )
            next.contacts.clear();
        for ( int64_t i = 0; contacts && i < telsxHeaderContactContactsLength( contacts.get() ); ++i )
        {
            Owned contact( telsxHeaderContactTryDecodeContactAt( contacts.get(), i ) );
            if ( !contact )
                return answer( request, 400 );
            int64_t own = telsxContactExpires( contact.get() );
            std::chrono::seconds time( std::min( own == -1 ? usual : own, maxExpires ) );
            next.contacts[toUtf8( Owned( telsxContactIri( contact.get() ) ) )] = now + time;
        }

        Message response = respond( request, 200 );
        Owned held( telsxHeaderContactCreate() );
        for ( auto at = next.contacts.begin(); at != next.contacts.end(); )
        {
            auto left = std::chrono::ceil<std::chrono::seconds>( at->second - now );
            if ( left <= 0s )
            {
                at = next.contacts.erase( at );
                continue;
            }
            Owned contact( telsxContactCreate( toString( at->first ).get() ) );
            telsxContactSetExpires( contact.address(), left.count() );
            telsxHeaderContactAppendContact( held.address(), contact.get() );
            ++at;
        }
        bool full = known == registrations.end() && registrations.size() >= maxRegistrations;
        if ( !next.contacts.empty() && ( full || next.contacts.size() > maxContacts ) )
            return answer( request, 503, 60 );
        if ( next.contacts.empty() )
            registrations.erase( who );
        else
        {
            telsxHeaderContactEncodeToMessage( held.get(), response.address() );
            registrations[who] = std::move( next );
        }
        send( request, response );
    }

    Network &network;
    SocketAddress address;
    std::chrono::milliseconds ringTime;
    std::map<std::string, Invite> invites;
    std::map<std::string, Call> calls;
    std::map<std::string, Registration> registrations; // by the address in To
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

    Answerer answerer( network, address, std::chrono::milliseconds( ring ) );
    auto receive = [&answerer]( Message message, const Peer &peer )
    { answerer.receive( std::move( message ), peer ); };
    while ( network.wait( answerer.tick(), receive ) )
        continue;
    return 0;
}
