// Answers calls: a SIP user agent server on UDP and TCP (RFC 3261, 8.2).
//
//     answer [--bind ADDRESS] [--port PORT] [--ring MILLISECONDS]
//
// ADDRESS, 127.0.0.1 unless told, is an IP address of this machine, at which others reach it; port 0 picks one.
// The first line on standard output tells both. An INVITE rings for the time (1000) and is taken then, unless
// its caller cancels it; a REGISTER binds addresses as a registrar does. SIGINT and SIGTERM end it.
#include <chrono>
#include <cstdlib>
#include <optional>
#include <set>
#include <sstream>

#include <strings.h>
#include <sys/random.h>

#include "sockets.hpp"

namespace
{

using To = Owned<TELSX_HEADER_TO>;
using Vias = Owned<TELSX_HEADER_VIA>;

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

// A request that can be answered: what its answers take over is there and good, but for Cseq.
struct Request
{
    Message message;
    Peer peer = {};
    std::string method = {}, scheme = {}; // the scheme is that of the Request-URI
    Vias vias = {};
    Owned<TELSX_HEADER_FROM> from = {};
    To to = {};
    Owned<TELSX_HEADER_CALL_ID> callId = {};
    int64_t number = -1;      // in Cseq; -1 if that is bad or has another method
    std::string tag = {};     // in To, if there is one
    uint64_t key = 0;         // of the call: it begins the tag of this side
    uint64_t random = 0;      // the rest of the tag
    uint64_t caller = 0;      // stands for Call-Id and the tag in From
    uint64_t transaction = 0; // the same when the request comes twice (RFC 3261, 17.2.3)
};

// Notes in the top Via where the request came from (RFC 3261, 18.2.1, and RFC 3581, 4), and in peer where the
// answers to a datagram go (RFC 3261, 18.2.2, but for maddr: it would send them anywhere). Returns branch and
// sent-by; nothing without a good Via.
std::string noteSource( Vias &vias, Peer &peer )
{
    Owned top( telsxHeaderViaViasLength( vias.get() ) ? telsxHeaderViaTryDecodeViaAt( vias.get(), 0 )
                                                      : nullptr );
    int64_t port = top && telsxViaHasPort( top.get() ) ? telsxViaPort( top.get() ) : 5060;
    if ( !top || port < 1 || port > 0xFFFF )
        return "";
    String host = toString( peer.address.host() ), sender( telsxViaHost( top.get() ) );
    String branch( telsxViaBranch( top.get() ) );
    bool asked = telsxViaHasRportEmpty( top.get() );
    if ( asked || !rtStringEquals( sender.get(), host.get() ) )
    {
        Owned address(
            netAddressTryCreateFromChars( rtStringBacking( host.get() ), rtStringLength( host.get() ) ) );
        telsxViaSetReceived( top.address(), address.get() );
    }
    if ( asked )
        telsxViaSetRportNumeric( top.address(), peer.address.port() );
    else if ( peer.connection == 0 )
        peer.address.setPort( port );
    telsxHeaderViaSetViaAt( vias.address(), 0, top.get() );
    return ( branch ? toUtf8( branch ) : "" ) + '\n' + toUtf8( sender ) + '\n' + std::to_string( port );
}

uint64_t randomNumber()
{
    uint64_t number;
    if ( getrandom( &number, sizeof number, 0 ) != sizeof number )
        std::abort();
    return number;
}

std::string toTag( uint64_t key, uint64_t random )
{
    return std::to_string( key ) + '-' + std::to_string( random );
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
    if ( !request.vias || !request.from || !request.to || !request.callId
         || !telsxHeaderCseqPresentInMessage( handle ) )
        return std::nullopt;
    std::string source = noteSource( request.vias, request.peer );
    if ( source.empty() )
        return std::nullopt;
    request.method = toUtf8( Owned( telsxMessageRequestMethod( handle ) ) );
    request.scheme = toUtf8( Owned( telsxMessageRequestIri( handle ) ) );
    request.scheme.resize( std::min( request.scheme.find( ':' ), request.scheme.size() ) );
    Owned cseq( telsxHeaderCseqTryDecodeFromMessage( handle ) );
    if ( cseq && toUtf8( Owned( telsxHeaderCseqMethod( cseq.get() ) ) ) == request.method )
        request.number = telsxHeaderCseqCseq( cseq.get() );

    // A call gets a random number of its own in its tag (RFC 3261, 19.3). All other answers share one, so that
    // the same request has the same tag (RFC 3261, 8.2.7); their tags name nothing.
    static const uint64_t shared = randomNumber();
    std::hash<std::string> hash;
    Owned theirs( telsxHeaderFromTag( request.from.get() ) ), ours( telsxHeaderToTag( request.to.get() ) );
    std::string text = toUtf8( Owned( telsxHeaderCallIdCallId( request.callId.get() ) ) ) + '\n'
                       + ( theirs ? toUtf8( theirs ) : "" );
    request.caller = hash( text );
    text += '\n' + std::to_string( request.number );
    request.tag = ours ? toUtf8( ours ) : "";
    request.key = ours ? std::strtoull( request.tag.c_str(), nullptr, 10 ) : hash( text );
    request.random = shared;
    request.transaction = hash( text + '\n' + source );
    return request;
}

// Takes a header over as it is, whether it would decode or not.
void copyHeader( const Request &request, const char *name, Message &response )
{
    if ( Owned header{ telsxMessageHeaderCstr( request.message.get(), name, -1 ) } )
        telsxMessageSetHeader( response.address(), header.get() );
}

// What every response begins with (RFC 3261, 8.2.6).
Message respond( const Request &request, int64_t statusCode )
{
    Owned version( telsxVersionCreateSip20() );
    Owned response( telsxMessageCreateResponse( version.get(), statusCode ) );
    telsxHeaderViaEncodeToMessage( request.vias.get(), response.address() );
    telsxHeaderFromEncodeToMessage( request.from.get(), response.address() );
    To to = request.to;
    if ( statusCode == 100 )
        copyHeader( request, "Timestamp", response );
    else if ( request.tag.empty() )
        telsxHeaderToSetTag( to.address(), toString( toTag( request.key, request.random ) ).get() );
    telsxHeaderToEncodeToMessage( to.get(), response.address() );
    telsxHeaderCallIdEncodeToMessage( request.callId.get(), response.address() );
    copyHeader( request, "Cseq", response );
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

// There is no type for Content-Type: its line is read and set as it is. (Another body is refused even if
// Content-Disposition says that it is optional.)
bool isSession( const Request &request )
{
    Owned header( telsxMessageHeaderCstr( request.message.get(), "Content-Type", -1 ) );
    std::string type = header ? toUtf8( Owned( telsxMessageHeaderLastLine( header.get() ) ) ) : "";
    return strcasecmp( type.substr( 0, type.find_first_of( "; \t" ) ).c_str(), "application/sdp" ) == 0;
}

// The times and streams with which to answer an offer (RFC 3264, 6); nothing if it is bad. The first stream of
// sound in PCMU is taken, without sound, and all others are refused.
std::optional<std::string> answerTo( const std::string &offer )
{
    std::istringstream lines( offer );
    std::string line, result;
    bool taken = false;
    while ( std::getline( lines, line ) )
    {
        std::istringstream words( line );
        std::string first, port, protocol, format, formats;
        words >> first >> port >> protocol;
        if ( first.rfind( "t=", 0 ) == 0 )
            result.append( first ).append( 1, ' ' ).append( port ).append( "\r\n" );
        if ( first.rfind( "m=", 0 ) != 0 )
            continue;
        bool fits = false;
        for ( ; words >> format; formats += ' ' + format )
            fits |= format == "0";
        if ( formats.empty() )
            return std::nullopt;
        fits = fits && !taken && first == "m=audio" && port != "0" && protocol == "RTP/AVP";
        taken |= fits;
        if ( fits )
            result.append( "m=audio 9 RTP/AVP 0\r\na=inactive\r\n" );
        else
            result.append( first ).append( " 0 " ).append( protocol ).append( formats ).append( "\r\n" );
    }
    bool good = offer.rfind( "v=0", 0 ) == 0 && result.rfind( "t=", 0 ) == 0;
    return good ? std::optional( result ) : std::nullopt;
}

void addSession( Message &response, const SocketAddress &address, uint64_t id, int64_t version,
                 const std::string &streams )
{
    Owned type( telsxMessageHeaderCreateCstr( "Content-Type", -1 ) );
    telsxMessageHeaderAppendLineCstr( type.address(), "application/sdp", -1 );
    telsxMessageSetHeader( response.address(), type.get() );
    std::string host = ( address.isV6() ? "IN IP6 " : "IN IP4 " ) + address.host();
    std::string session = "v=0\r\no=answer " + std::to_string( id ) + ' ' + std::to_string( version ) + ' '
                          + host + "\r\ns=-\r\nc=" + host + "\r\n" + streams;
    telsxMessageSetBody( response.address(), toBuffer( session ).get() );
}

// The calls and the registrations.
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
        Owned require( telsxHeaderRequireTryDecodeFromMessage( request->message.get() ) );
        if ( request->number == -1
             || ( !require && telsxHeaderRequirePresentInMessage( request->message.get() ) ) )
            return answer( *request, 400 );
        if ( method == "CANCEL" )
            return cancel( *request );
        const char *scheme = request->scheme.c_str();
        if ( strcasecmp( scheme, "sip" ) != 0 && strcasecmp( scheme, "sips" ) != 0 )
            return answer( *request, 416 );
        if ( require && telsxHeaderRequireOptionTagsLength( require.get() ) > 0 )
            return refuseExtensions( *request, require );
        if ( method == "INVITE" )
            return invite( *request );
        if ( method == "REGISTER" )
            return bind( *request );
        if ( ( method == "BYE" || !request->tag.empty() ) && !follows( *request ) )
            return;
        if ( method == "BYE" )
            return bye( *request );
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
        while ( !ends.empty() && now >= ends.begin()->first )
            forgetFirst();
        if ( now < nextWalk )
            return 20;
        nextWalk = now + 20ms;
        for ( auto &[key, invite] : invites )
        {
            if ( now >= invite.due && !invite.final )
                finish( key, invite, true );
            else if ( now >= invite.due )
            {
                network.send( invite.peer, invite.response );
                invite.pause = std::min<Clock::duration>( 2 * invite.pause, 4s );
                invite.due = now + invite.pause;
            }
        }
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
        Clock::duration pause = t1;
        bool final = false;
    };

    // A call from its INVITE on and a while beyond its BYE, since that may come twice.
    struct Call
    {
        uint64_t caller, random;  // as in its first INVITE
        uint64_t transaction = 0; // of the last one
        int64_t number = 0;       // of the last request
        int64_t version = 0;      // of the session
        bool over = false;
        Clock::time_point end = {}; // when it is forgotten
    };

    // A contact, by the last request that has bound it, and until when it holds.
    struct Binding
    {
        uint64_t callId = 0, transaction = 0;
        int64_t number = -1;
        Clock::time_point end = {};
    };

    // The contacts of an address; the end is not before theirs.
    struct Registration
    {
        std::map<std::string, Binding> contacts;
        Clock::time_point end;
    };

    template <class TABLE>
    static void forget( TABLE &table, Clock::time_point now )
    {
        for ( auto at = table.begin(); at != table.end(); )
            at = now >= at->second.end ? table.erase( at ) : std::next( at );
    }

    void keep( uint64_t key, Call &call, Clock::duration time )
    {
        ends.erase( { call.end, key } );
        call.end = Clock::now() + time;
        ends.emplace( call.end, key );
    }

    void forgetFirst()
    {
        invites.erase( ends.begin()->second );
        calls.erase( ends.begin()->second );
        ends.erase( ends.begin() );
    }

    // The call of the request: for one without a tag in To, the call that it began.
    Call *find( const Request &request )
    {
        auto at = calls.find( request.key );
        if ( at == calls.end() || at->second.caller != request.caller )
            return nullptr;
        bool named = request.tag.empty() || request.tag == toTag( at->first, at->second.random );
        return named ? &at->second : nullptr;
    }

    void send( const Request &request, const Message &response )
    {
        network.send( request.peer, encode( response ) );
    }

    // With the seconds after which another try may do better, if there are any.
    void answer( const Request &request, int64_t statusCode, int64_t retryAfter = 0 )
    {
        Message response = respond( request, statusCode );
        if ( statusCode == 415 )
            addAccept( response );
        if ( Owned header{ retryAfter ? telsxHeaderRetryAfterCreate( retryAfter ) : nullptr } )
            telsxHeaderRetryAfterEncodeToMessage( header.get(), response.address() );
        send( request, response );
    }

    // None is understood here (RFC 3261, 8.2.2.3).
    void refuseExtensions( const Request &request, const Owned<TELSX_HEADER_REQUIRE> &require )
    {
        Owned unsupported( telsxHeaderUnsupportedCreate() );
        Owned tags( telsxHeaderRequireOptionTagsVector( require.get() ) );
        telsxHeaderUnsupportedSetOptionTagsVector( unsupported.address(), tags.get() );
        Message response = respond( request, 420 );
        telsxHeaderUnsupportedEncodeToMessage( unsupported.get(), response.address() );
        send( request, response );
    }

    // Whether the request is the next one of its dialog (RFC 3261, 12.2.2); answered if not.
    bool follows( const Request &request )
    {
        Call *call = request.tag.empty() ? nullptr : find( request );
        bool there = call && ( !call->over || request.method == "BYE" );
        if ( !there || request.number < call->number )
            return answer( request, there ? 500 : 481 ), false;
        call->number = request.number;
        return true;
    }

    // A response that makes a dialog (RFC 3261, 12.1.1).
    Message respondInDialog( const Request &request, int64_t statusCode )
    {
        Message response = respond( request, statusCode );
        copyHeader( request, "Record-Route", response );
        std::string iri =
            request.scheme + ':' + ( address.isV6() ? "[" + address.host() + "]" : address.host() ) + ":"
            + std::to_string( address.port() ) + ( request.peer.connection ? ";transport=tcp" : "" );
        Owned contact( telsxContactCreate( toString( iri ).get() ) );
        Owned contacts( telsxHeaderContactCreate() );
        telsxHeaderContactAppendContact( contacts.address(), contact.get() );
        telsxHeaderContactEncodeToMessage( contacts.get(), response.address() );
        addAllow( response );
        return response;
    }

    void invite( Request &request )
    {
        // First those that are over and those that nobody acknowledges, which one sender may make many of, then
        // the oldest.
        while ( invites.size() >= maxInvites || calls.size() >= maxCalls )
            forgetFirst();
        auto pending = invites.find( request.key );
        Call *call = find( request );
        bool again = call && call->transaction == request.transaction;
        if ( again && pending != invites.end() )
            return network.send( pending->second.peer, pending->second.response );
        if ( again )
            return; // a late copy of one that is acknowledged
        if ( call && request.tag.empty() )
            return answer( request, 482 ); // it came on two ways (RFC 3261, 8.2.2.2)
        if ( !request.tag.empty() && !follows( request ) )
            return;
        if ( pending != invites.end() )
            return answer( request, 500, 5 ); // one after the other (RFC 3261, 14.2)

        Owned body( telsxMessageBody( request.message.get() ) );
        std::optional<std::string> streams = "t=0 0\r\nm=audio 9 RTP/AVP 0\r\na=inactive\r\n";
        bool offered = body && rtBufferLength( body.get() ) > 0;
        if ( offered && !isSession( request ) )
            return answer( request, 415 );
        if ( offered && !( streams = answerTo( toBytes( body ) ) ) )
            return answer( request, 400 );

        if ( !call )
        {
            request.random = randomNumber();
            call = &( calls[request.key] = { request.caller, request.random } );
        }
        call->transaction = request.transaction;
        call->number = request.number;
        keep( request.key, *call, ringTime + patience );
        Message taken = respondInDialog( request, 200 );
        addSession( taken, address, request.key >> 1, ++call->version, *streams );
        Invite &next = invites[request.key];
        next.number = request.number;
        next.peer = request.peer;
        next.response = encode( respondInDialog( request, 180 ) );
        next.taken = encode( taken );
        next.cancelled = encode( respond( request, 487 ) );
        next.due = Clock::now() + ringTime;
        if ( !request.tag.empty() )
            return finish( request.key, next, true ); // a change of the session doesn't ring
        answer( request, 100 );
        network.send( next.peer, next.response );
    }

    void finish( uint64_t key, Invite &invite, bool taken )
    {
        invite.response = std::move( taken ? invite.taken : invite.cancelled );
        invite.final = true;
        // A connection loses nothing, but behind it a 200 may be on its way by UDP.
        bool again = taken || invite.peer.connection == 0;
        invite.due = again ? Clock::now() + invite.pause : Clock::time_point::max();
        calls[key].over = !taken;
        keep( key, calls[key], patience );
        network.send( invite.peer, invite.response );
    }

    void acknowledge( const Request &request )
    {
        auto at = invites.find( request.key );
        Call *call = request.tag.empty() ? nullptr : find( request );
        if ( !call || at == invites.end() || at->second.number != request.number || !at->second.final )
            return;
        invites.erase( at );
        if ( !call->over )
            keep( request.key, *call, 24h );
    }

    void cancel( Request &request )
    {
        auto at = invites.find( request.key );
        Call *call = find( request );
        if ( !call || at == invites.end() || call->transaction != request.transaction )
            return answer( request, 481 );
        request.random = call->random;
        answer( request, 200 );
        if ( !at->second.final )
            finish( at->first, at->second, false );
    }

    // For a request that follows, so that there is a call.
    void bye( const Request &request )
    {
        answer( request, 200 );
        auto pending = invites.find( request.key );
        if ( pending != invites.end() && !pending->second.final )
            return finish( request.key, pending->second, false );
        if ( pending != invites.end() )
            invites.erase( pending );
        calls[request.key].over = true;
        keep( request.key, calls[request.key], patience );
    }

    // A registrar (RFC 3261, 10.3). Of a contact it gives back its address and until when it holds; addresses
    // are the same if their texts are, not by the rules of RFC 3261, 19.1.4.
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
        forget( next.contacts, now );
        std::hash<std::string> hash;
        uint64_t callId = hash( toUtf8( Owned( telsxHeaderCallIdCallId( request.callId.get() ) ) ) );
        auto newer = [&]( const auto &contact ) // than the request, unless that has just come twice
        {
            return contact.second.callId == callId && contact.second.number >= request.number
                   && contact.second.transaction != request.transaction;
        };

        Owned contacts( telsxHeaderContactTryDecodeFromMessage( message ) );
        Owned expires( telsxHeaderExpiresTryDecodeFromMessage( message ) );
        int64_t usual = expires ? telsxHeaderExpiresDeltaSeconds( expires.get() ) : maxExpires;
        bool star = contacts && telsxHeaderContactIsStarForm( contacts.get() );
        if ( ( !contacts && telsxHeaderContactPresentInMessage( message ) ) || ( star && usual != 0 ) )
            return answer( request, 400 );
        if ( star && std::any_of( next.contacts.begin(), next.contacts.end(), newer ) )
            return answer( request, 500 );
        if ( star )
            next.contacts.clear();
        for ( int64_t i = 0; contacts && i < telsxHeaderContactContactsLength( contacts.get() ); ++i )
        {
            Owned contact( telsxHeaderContactTryDecodeContactAt( contacts.get(), i ) );
            if ( !contact )
                return answer( request, 400 );
            int64_t own = telsxContactExpires( contact.get() );
            std::chrono::seconds time( std::min( own == -1 ? usual : own, maxExpires ) );
            std::string iri = toUtf8( Owned( telsxContactIri( contact.get() ) ) );
            auto &bound = *next.contacts.try_emplace( iri ).first;
            if ( newer( bound ) )
                return answer( request, 500 );
            bound.second = { callId, request.transaction, request.number, now + time };
        }

        Message response = respond( request, 200 );
        Owned held( telsxHeaderContactCreate() );
        forget( next.contacts, now );
        for ( const auto &[iri, binding] : next.contacts )
        {
            Owned contact( telsxContactCreate( toString( iri ).get() ) );
            auto left = std::chrono::ceil<std::chrono::seconds>( binding.end - now );
            telsxContactSetExpires( contact.address(), left.count() );
            telsxHeaderContactAppendContact( held.address(), contact.get() );
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
    std::map<uint64_t, Invite> invites;
    std::map<uint64_t, Call> calls;
    std::set<std::pair<Clock::time_point, uint64_t>> ends; // of the calls
    Clock::time_point nextWalk = {};                       // over the INVITEs
    std::map<std::string, Registration> registrations;     // by the address in To
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
