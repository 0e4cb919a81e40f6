#include "calls.hpp"

#include "offers.hpp"
#include "responses.hpp"

Clock::time_point Calls::tick()
{
    auto now = Clock::now();
    for ( Agenda &agenda : ends )
        while ( !agenda.empty() && now >= agenda.begin()->first )
            forget( agenda.begin()->second );
    // Handles some of what is due; then it is the turn of what has arrived meanwhile.
    for ( int i = 0; i < 100 && !dues.empty() && now >= dues.begin()->first; ++i )
    {
        uint64_t key = dues.begin()->second;
        Invite &invite = invites.find( key )->second;
        if ( !invite.final )
            finish( key, invite, true );
        else
        {
            network.send( invite.peer, invite.response );
            invite.pause = std::min<Clock::duration>( 2 * invite.pause, 4s );
            schedule( key, invite, now + invite.pause );
        }
    }
    auto next = now + 1h;
    for ( const Agenda *agenda : { &dues, &ends[false], &ends[true] } )
        if ( !agenda->empty() )
            next = std::min( next, agenda->begin()->first );
    return next;
}

// Whether there is no room for another INVITE, in the call or, without one, in a new call. Calls that are over make
// room; no others do.
bool Calls::full( const Call *call )
{
    if ( !call && calls.size() >= maxCalls && !ends[true].empty() )
        forget( ends[true].begin()->second );
    return ( !call && calls.size() >= maxCalls ) || invites.size() >= maxInvites || bytes >= maxBytes;
}

void Calls::keep( uint64_t key, Call &call, bool over, Clock::duration time )
{
    ends[call.over].erase( { call.end, key } );
    call.over = over;
    call.end = Clock::now() + time;
    ends[over].emplace( call.end, key );
}

void Calls::forget( uint64_t key )
{
    auto call = calls.find( key );
    ends[call->second.over].erase( { call->second.end, key } );
    calls.erase( call );
    forget( invites.find( key ) );
}

void Calls::forget( Invites::iterator invite )
{
    if ( invite == invites.end() )
        return;
    dues.erase( { invite->second.due, invite->first } );
    bytes -= invite->second.bytes;
    invites.erase( invite );
}

void Calls::schedule( uint64_t key, Invite &invite, Clock::time_point due )
{
    dues.erase( { invite.due, key } );
    invite.due = due;
    dues.emplace( due, key );
}

// The call of the request; without a tag in To, the call that the request began.
Calls::Call *Calls::find( const Request &request )
{
    auto at = calls.find( request.key );
    if ( at == calls.end() || at->second.caller != request.caller )
        return nullptr;
    bool named = request.tag.empty() || request.tag == toTag( at->first, at->second.random );
    return named ? &at->second : nullptr;
}

void Calls::answer( const Request &request, const Message &response )
{
    network.send( request.peer, encode( response ) );
}

void Calls::answer( const Request &request, int64_t statusCode )
{
    answer( request, refuse( request, statusCode ) );
}

bool Calls::follows( const Request &request )
{
    Call *call = request.tag.empty() ? nullptr : find( request );
    bool there = call && ( !call->over || request.method == "BYE" );
    if ( !there || request.number < call->number )
        return answer( request, there ? 500 : 481 ), false;
    call->number = request.number;
    return true;
}

// A response that creates a dialog (RFC 3261, 12.1.1).
Message Calls::respondInDialog( const Request &request, int64_t statusCode )
{
    Message response = respond( request, statusCode );
    copyHeader( request, "Record-Route", response );
    std::string host = address.isV6() ? "[" + address.host() + "]" : address.host();
    Owned here( telsxSipIriCreate( toString( host ).get() ) );
    telsxSipIriSetSecure( here.address(), request.target && telsxSipIriSecure( request.target.get() ) );
    telsxSipIriSetPort( here.address(), address.port() );
    if ( request.peer.connection )
        telsxSipIriSetTransport( here.address(), toString( "tcp" ).get() );
    Owned contact( telsxContactCreate( Owned( telsxSipIriEncode( here.get() ) ).get() ) );
    Owned contacts( telsxHeaderContactCreate() );
    telsxHeaderContactAppendContact( contacts.address(), contact.get() );
    telsxHeaderContactEncodeToMessage( contacts.get(), response.address() );
    return response;
}

void Calls::invite( Request &request )
{
    auto pending = invites.find( request.key );
    Call *call = find( request );
    bool again = call && call->transaction == request.transaction;
    if ( again && pending != invites.end() )
    {
        pending->second.peer = request.peer; // it may arrive over a new connection
        return network.send( request.peer, pending->second.response );
    }
    if ( again )
        return; // a late copy of an acknowledged one
    if ( call && request.tag.empty() )
        return answer( request, 482 ); // it came by two paths (RFC 3261, 8.2.2.2)
    if ( !request.tag.empty() && !follows( request ) )
        return;
    if ( pending != invites.end() )
        return answer( request, refuseForNow( request, 500, 5 ) ); // one after the other (RFC 3261, 14.2)
    Answer session = answerTo( request );
    if ( session.statusCode )
        return answer( request, session.statusCode );
    if ( full( call ) )
        return answer( request, refuseForNow( request, 503, 10 ) );

    if ( !call )
        request.random = randomNumber();
    Message response = respondInDialog( request, 200 );
    addCapabilities( response );
    addSession( response, address, request.key >> 1, call ? call->version + 1 : 1, session.text );
    Invite next = { request.number, request.peer, encode( respondInDialog( request, 180 ) ),
                    encode( response ) };
    if ( request.datagram && next.taken.size() > Network::maxDatagram )
        return answer( request, 500 );
    next.bytes = next.response.size() + next.taken.size();
    bytes += next.bytes;
    if ( !call )
        call = &( calls[request.key] = { request.caller, request.random } );
    call->transaction = request.transaction;
    call->number = request.number;
    ++call->version;
    keep( request.key, *call, false, ringTime + patience );
    Invite &invite = invites[request.key] = std::move( next );
    if ( !request.tag.empty() )
        return finish( request.key, invite, true ); // a change of the session doesn't ring
    schedule( request.key, invite, Clock::now() + ringTime );
    answer( request, 100 );
    network.send( invite.peer, invite.response );
}

void Calls::finish( uint64_t key, Invite &invite, bool taken )
{
    if ( taken )
        invite.response = std::move( invite.taken );
    else
    {
        // The 180 with another status code, and without what creates a dialog.
        Message response( telsxMessageTryDecode( toBuffer( invite.response ).get() ) );
        telsxMessageSetResponseStatusCode( response.address(), 487, true );
        telsxHeaderContactRemoveFromMessage( response.address() );
        telsxHeaderRecordRouteRemoveFromMessage( response.address() );
        invite.response = encode( response );
    }
    invite.final = true;
    // A connection loses nothing, but beyond it a 200 may travel by UDP.
    bool again = taken || invite.peer.connection == 0;
    schedule( key, invite, again ? Clock::now() + invite.pause : Clock::time_point::max() );
    keep( key, calls[key], !taken, patience );
    network.send( invite.peer, invite.response );
}

void Calls::acknowledge( const Request &request )
{
    auto at = invites.find( request.key );
    Call *call = request.tag.empty() ? nullptr : find( request );
    if ( !call || at == invites.end() || at->second.number != request.number || !at->second.final )
        return;
    forget( at );
    if ( !call->over )
        keep( request.key, *call, false, maxTime );
}

void Calls::cancel( Request &request )
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

void Calls::bye( const Request &request )
{
    answer( request, 200 );
    auto pending = invites.find( request.key );
    if ( pending != invites.end() && !pending->second.final )
        return finish( request.key, pending->second, false );
    forget( pending );
    keep( request.key, calls[request.key], true, patience );
}
