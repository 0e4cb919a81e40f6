#include "calls.hpp"

#include "offers.hpp"
#include "responses.hpp"

int Calls::tick()
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

void Calls::keep( uint64_t key, Call &call, Clock::duration time )
{
    ends.erase( { call.end, key } );
    call.end = Clock::now() + time;
    ends.emplace( call.end, key );
}

void Calls::forgetFirst()
{
    invites.erase( ends.begin()->second );
    calls.erase( ends.begin()->second );
    ends.erase( ends.begin() );
}

// The call of the request: for one without a tag in To, the call that it began.
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

// A response that makes a dialog (RFC 3261, 12.1.1).
Message Calls::respondInDialog( const Request &request, int64_t statusCode )
{
    Message response = respond( request, statusCode );
    copyHeader( request, "Record-Route", response );
    std::string iri = request.scheme + ':' + ( address.isV6() ? "[" + address.host() + "]" : address.host() )
                      + ":" + std::to_string( address.port() )
                      + ( request.peer.connection ? ";transport=tcp" : "" );
    Owned contact( telsxContactCreate( toString( iri ).get() ) );
    Owned contacts( telsxHeaderContactCreate() );
    telsxHeaderContactAppendContact( contacts.address(), contact.get() );
    telsxHeaderContactEncodeToMessage( contacts.get(), response.address() );
    addAllow( response );
    return response;
}

void Calls::invite( Request &request )
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
        return answer( request, refuseForNow( request, 500, 5 ) ); // one after the other (RFC 3261, 14.2)

    if ( hasBody( request ) && !hasSession( request ) )
        return answer( request, 415 );
    std::optional<std::string> streams = answerTo( request );
    if ( !streams )
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

void Calls::finish( uint64_t key, Invite &invite, bool taken )
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

void Calls::acknowledge( const Request &request )
{
    auto at = invites.find( request.key );
    Call *call = request.tag.empty() ? nullptr : find( request );
    if ( !call || at == invites.end() || at->second.number != request.number || !at->second.final )
        return;
    invites.erase( at );
    if ( !call->over )
        keep( request.key, *call, 24h );
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
    if ( pending != invites.end() )
        invites.erase( pending );
    calls[request.key].over = true;
    keep( request.key, calls[request.key], patience );
}
