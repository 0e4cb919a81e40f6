#include "transport.hpp"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <vector>

#include <arpa/inet.h>
#include <poll.h>
#include <sys/signalfd.h>

namespace
{

bool bindTo( const SocketAddress &address, int type, Descriptor &to )
{
    to = Descriptor( socket( address.any.sa_family, type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0 ) );
    int on = 1, room = 8 << 20;
    // A new process can have the port even if the system still remembers its last connections.
    if ( type == SOCK_STREAM )
        setsockopt( to.get(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on );
    // What arrives while this side is busy waits, as much as the system allows (net.core.rmem_max).
    else
        setsockopt( to.get(), SOL_SOCKET, SO_RCVBUF, &room, sizeof room );
    return bind( to.get(), &address.any, address.length() ) == 0;
}

} // namespace

std::string SocketAddress::host() const
{
    char text[INET6_ADDRSTRLEN] = "";
    inet_ntop( any.sa_family, isV6() ? (const void *)&v6.sin6_addr : &v4.sin_addr, text, sizeof text );
    return text;
}

std::string SocketAddress::source() const
{
    return isV6() ? std::string( reinterpret_cast<const char *>( &v6.sin6_addr ), 8 )
                  : std::string( reinterpret_cast<const char *>( &v4.sin_addr ), 4 );
}

bool SocketAddress::setHost( const char *text )
{
    any.sa_family = std::strchr( text, ':' ) ? AF_INET6 : AF_INET;
    return inet_pton( any.sa_family, text, isV6() ? (void *)&v6.sin6_addr : &v4.sin_addr ) == 1;
}

bool Network::open( SocketAddress &address )
{
    sigset_t mask;
    sigemptyset( &mask );
    sigaddset( &mask, SIGINT );
    sigaddset( &mask, SIGTERM );
    sigprocmask( SIG_BLOCK, &mask, nullptr );
    signals = Descriptor( signalfd( -1, &mask, SFD_CLOEXEC ) );
    own = address;
    own.setPort( 0 );
    // A port that is free for TCP may be in use for UDP.
    SocketAddress wanted = address;
    for ( int tries = 0; tries < 16; ++tries )
    {
        address = wanted;
        socklen_t length = address.length();
        if ( bindTo( address, SOCK_STREAM, listener ) && listen( listener.get(), SOMAXCONN ) == 0
             && getsockname( listener.get(), &address.any, &length ) == 0
             && bindTo( address, SOCK_DGRAM, datagrams ) )
            return true;
        if ( errno != EADDRINUSE || wanted.port() != 0 )
            break;
    }
    return false;
}

bool Network::wait( Clock::time_point until, const Receive &receive )
{
    std::vector<pollfd> watched;
    std::vector<uint64_t> ids;
    for ( const Descriptor *descriptor : { &signals, &listener, &datagrams } )
        watched.push_back( { descriptor->get(), POLLIN, 0 } );
    if ( std::exchange( deaf, false ) )
        watched[1].fd = -1;
    for ( const auto &[id, connection] : connections )
    {
        short events = connection.unsent.empty() ? POLLIN : POLLIN | POLLOUT;
        watched.push_back( { connection.socket.get(), events, 0 } );
        ids.push_back( id );
        until = std::min( until, connection.deadline );
    }
    auto left = std::clamp<Clock::duration>( until - Clock::now(), 0s, 1h );
    timespec time{ left / 1s, left % 1s / 1ns };
    int ready = ppoll( watched.data(), watched.size(), &time, nullptr );
    if ( ready > 0 && watched[0].revents )
        return false;

    if ( ready > 0 && watched[2].revents )
        readDatagrams( receive );
    for ( std::size_t i = 0; ready > 0 && i < ids.size(); ++i )
    {
        short events = watched[i + 3].revents;
        auto at = connections.find( ids[i] );
        if ( at != connections.end() && ( events & POLLOUT ) )
            flush( at->second );
        if ( at != connections.end() && ( events & ~POLLOUT ) )
            readStream( at->first, at->second, receive );
    }
    auto now = Clock::now();
    for ( auto at = connections.begin(); at != connections.end(); )
        at = at->second.over || now >= at->second.deadline ? connections.erase( at ) : std::next( at );
    if ( ready > 0 && watched[1].revents )
        acceptConnection();
    return true;
}

void Network::send( const Peer &peer, const std::string &bytes )
{
    if ( peer.connection == 0
         && ( sendto( datagrams.get(), bytes.data(), bytes.size(), MSG_DONTWAIT, &peer.address.any,
                      peer.address.length() )
                  >= 0
              || errno != EMSGSIZE ) )
        return;
    auto at = connections.find( peer.connection );
    if ( at == connections.end() )
        at = connectTo( peer );
    if ( at == connections.end() )
        return;
    at->second.unsent += bytes;
    flush( at->second );
}

void Network::readDatagrams( const Receive &receive )
{
    // Reads everything that is there, but gives timers and connections their turn.
    for ( int i = 0; i < 1000; ++i )
    {
        Peer peer = {};
        socklen_t addressLength = sizeof peer.address;
        ssize_t length =
            recvfrom( datagrams.get(), piece, sizeof piece, MSG_DONTWAIT, &peer.address.any, &addressLength );
        if ( length < 0 )
            return;
        std::string_view bytes( piece, std::size_t( length ) );
        if ( Message message{ telsxMessageTryDecode( toBuffer( bytes ).get() ) } )
            receive( { std::move( message ), peer, bytes.size() } );
        else if ( Message rest{ telsxMessageTryDecodeLoosely( toBuffer( bytes ).get() ) } )
            receive( { std::move( rest ), peer, bytes.size(), 400 } );
    }
}

void Network::readStream( uint64_t id, Connection &connection, const Receive &receive )
{
    // No more than fits, so that the size limit is the same however the network cuts the stream.
    ssize_t length =
        recv( connection.socket.get(), piece, sizeof piece - connection.begun.size(), MSG_DONTWAIT );
    if ( length <= 0 )
    {
        connection.over = length == 0 || ( errno != EAGAIN && errno != EINTR );
        return;
    }
    if ( connection.deaf )
        return;
    std::string_view bytes( piece, std::size_t( length ) );
    TELSX_MESSAGE_STREAM_DECODER decoder = connection.decoder.get();
    Peer peer{ id, connection.address };
    connection.lastHeard = ++clock;
    connection.begun += bytes;
    std::size_t read = 0; // of what was begun
    telsxMessageStreamDecoderWrite( decoder, toBuffer( bytes ).get() );
    while ( Message message{ connection.over ? nullptr : telsxMessageStreamDecoderRead( decoder ) } )
    {
        connection.deadline = Clock::time_point::max();
        read = connection.begun.size() - std::size_t( telsxMessageStreamDecoderLength( decoder ) );
        receive( { std::move( message ), peer } );
    }
    bool bad = telsxMessageStreamDecoderError( decoder );
    if ( !bad ) // it also skips line ends between messages
        read = connection.begun.size() - std::size_t( telsxMessageStreamDecoderLength( decoder ) );
    connection.begun.erase( 0, read );
    if ( !bad && connection.begun.size() < maxMessage )
        return;

    // After a bad message nothing tells where the next one begins. The connection stays open for a while: otherwise
    // what the peer is still sending would end it before the response is read.
    connection.deaf = true;
    connection.deadline = Clock::now() + linger;
    // The last line may not have come whole.
    std::size_t end = connection.begun.rfind( "\r\n" );
    connection.begun.resize( end == connection.begun.npos ? 0 : end + 2 );
    Message rest( telsxMessageTryDecodeLoosely( toBuffer( connection.begun ).get() ) );
    connection.begun.clear();
    if ( rest )
        receive( { std::move( rest ), peer, 0, bad ? 400 : 513 } );
    else
        connection.over = true;
}

void Network::flush( Connection &connection )
{
    ssize_t sent = ::send( connection.socket.get(), connection.unsent.data(), connection.unsent.size(),
                           MSG_DONTWAIT | MSG_NOSIGNAL );
    if ( sent > 0 )
        connection.unsent.erase( 0, std::size_t( sent ) );
    if ( ( sent < 0 && errno != EAGAIN && errno != EINTR ) || connection.unsent.size() > maxUnsent )
    {
        connection.unsent.clear();
        connection.over = true;
    }
}

void Network::acceptConnection()
{
    Connection connection;
    socklen_t length = sizeof connection.address;
    connection.socket = Descriptor(
        accept4( listener.get(), &connection.address.any, &length, SOCK_CLOEXEC | SOCK_NONBLOCK ) );
    if ( connection.socket.get() >= 0 )
        add( ++lastConnection, std::move( connection ) );
    else if ( errno == EMFILE || errno == ENFILE )
    {
        // Without a free descriptor, the waiting connection would be reported again and again.
        deaf = connections.empty();
        dropOne();
    }
}

Network::Connections::iterator Network::connectTo( const Peer &peer )
{
    Connection connection;
    connection.address = peer.address;
    connection.address.setPort( peer.port );
    bool begun =
        bindTo( own, SOCK_STREAM, connection.socket )
        && ( connect( connection.socket.get(), &connection.address.any, connection.address.length() ) == 0
             || errno == EINPROGRESS );
    if ( !begun )
        return connections.end();
    return add( peer.connection ? peer.connection : ++lastConnection, std::move( connection ) );
}

Network::Connections::iterator Network::add( uint64_t id, Connection connection )
{
    if ( connections.size() >= maxConnections )
        dropOne();
    connection.lastHeard = ++clock;
    return connections.emplace( id, std::move( connection ) ).first;
}

// The quietest of the connections that have never sent a message, or, if there are none, of all.
void Network::dropOne()
{
    auto less = []( const auto &a, const auto &b )
    {
        auto rank = []( const Connection &connection )
        { return std::pair( connection.deadline == Clock::time_point::max(), connection.lastHeard ); };
        return rank( a.second ) < rank( b.second );
    };
    if ( !connections.empty() )
        connections.erase( std::min_element( connections.begin(), connections.end(), less ) );
}
