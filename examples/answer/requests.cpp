#include "requests.hpp"

#include <cstdlib>

#include <sys/random.h>

namespace
{

// Notes in the top Via where the request came from (RFC 3261, 18.2.1, and RFC 3581, 4), and in peer where the answers
// to a datagram go (RFC 3261, 18.2.2, except for maddr, which could send them anywhere). Returns branch and sent-by;
// nothing without a good Via.
std::string noteSource( Owned<TELSX_HEADER_VIA> &vias, Peer &peer )
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
    peer.port = port;
    telsxHeaderViaSetViaAt( vias.address(), 0, top.get() );
    return ( branch ? toUtf8( branch ) : "" ) + '\n' + toUtf8( sender ) + '\n' + std::to_string( port );
}

} // namespace

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

std::optional<Request> toRequest( Arrival arrival )
{
    TELSX_MESSAGE handle = arrival.message.get();
    if ( !telsxMessageIsRequest( handle ) )
        return std::nullopt; // this side sends no requests, so nothing waits for a response
    Request request{ std::move( arrival.message ), arrival.peer, arrival.datagram, arrival.statusCode };
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
    request.target = Owned( telsxSipIriTryDecode( Owned( telsxMessageRequestIri( handle ) ).get() ) );
    Owned cseq( telsxHeaderCseqTryDecodeFromMessage( handle ) );
    if ( cseq && toUtf8( Owned( telsxHeaderCseqMethod( cseq.get() ) ) ) == request.method )
        request.number = telsxHeaderCseqCseq( cseq.get() );

    // Each call gets its own random number in its tag (RFC 3261, 19.3). All other answers share one, so that the same
    // request gets the same tag (RFC 3261, 8.2.7); their tags identify nothing.
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
