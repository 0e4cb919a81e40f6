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
    int on = 1;
    // So that a new process can have the port whose last connections the system still remembers.
    if ( type == SOCK_STREAM )
        setsockopt( to.get(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on );
    return bind( to.get(), &address.any, address.length() ) == 0;
}

} // namespace

std::string SocketAddress::host() const
{
    char text[INET6_ADDRSTRLEN] = "";
    inet_ntop( any.sa_family, isV6() ? (const void *)&v6.sin6_addr : &v4.sin_addr, text, sizeof text );
    return text;
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
    // A port that is free for TCP may be taken for UDP.
    SocketAddress wanted = address;
    for ( int tries = 0; tries < 16; ++tries )
    {
        address = wanted;
        socklen_t length = address.length();
        if ( bindTo( address, SOCK_STREAM, listener ) && listen( listener.get(), 64 ) == 0
             && getsockname( listener.get(), &address.any, &length ) == 0
             && bindTo( address, SOCK_DGRAM, datagrams ) )
            return true;
        if ( errno != EADDRINUSE || wanted.port() != 0 )
            break;
    }
    return false;
}

bool Network::wait( int milliseconds, const Receive &receive )
{
    std::vector<pollfd> watched;
    for ( const Descriptor *descriptor : { &signals, &listener, &datagrams } )
        watched.push_back( { descriptor->get(), POLLIN, 0 } );
    if ( std::exchange( deaf, false ) )
        watched[1].fd = -1;
    for ( const auto &[id, connection] : connections )
    {
        short events = connection.unsent.empty() ? POLLIN : POLLIN | POLLOUT;
        watched.push_back( { connection.socket.get(), events, 0 } );
    }
    if ( poll( watched.data(), watched.size(), milliseconds ) <= 0 )
        return true;
    if ( watched[0].revents )
        return false;

    if ( watched[2].revents )
        readDatagrams( receive );
    auto ready = watched.begin() + 3;
    for ( auto &[id, connection] : connections )
    {
        if ( ready->revents & POLLOUT )
            flush( connection );
        if ( ( ready++->revents & ~POLLOUT ) != 0 )
            readStream( id, connection, receive );
    }
    for ( auto at = connections.begin(); at != connections.end(); )
        at = at->second.over ? connections.erase( at ) : std::next( at );
    if ( watched[1].revents )
        acceptConnection();
    return true;
}

void Network::send( const Peer &peer, const std::string &bytes )
{
    if ( peer.connection == 0 )
    {
        sendto( datagrams.get(), bytes.data(), bytes.size(), MSG_DONTWAIT, &peer.address.any,
                peer.address.length() );
        return;
    }
    auto at = connections.find( peer.connection );
    if ( at == connections.end() )
        return;
    at->second.unsent += bytes;
    flush( at->second );
}

void Network::readDatagrams( const Receive &receive )
{
    // Connections have their turn too.
    for ( int i = 0; i < 100; ++i )
    {
        Peer peer = {};
        socklen_t addressLength = sizeof peer.address;
        ssize_t length = recvfrom( datagrams.get(), piece, sizeof piece, MSG_DONTWAIT | MSG_TRUNC,
                                   &peer.address.any, &addressLength );
        if ( length < 0 )
            return;
        if ( std::size_t( length ) > maxMessage )
            continue;
        Buffer datagram = toBuffer( { piece, std::size_t( length ) } );
        if ( Message message{ telsxMessageTryDecode( datagram.get() ) } )
            receive( std::move( message ), peer );
    }
}

void Network::readStream( uint64_t id, Connection &connection, const Receive &receive )
{
    TELSX_MESSAGE_STREAM_DECODER decoder = connection.decoder.get();
    // No more than fits, so that the longest message is the same however the network cuts it.
    std::size_t room = maxMessage - std::size_t( telsxMessageStreamDecoderLength( decoder ) );
    ssize_t length = recv( connection.socket.get(), piece, room, MSG_DONTWAIT );
    if ( length <= 0 )
    {
        connection.over = length == 0 || ( errno != EAGAIN && errno != EINTR );
        return;
    }
    connection.lastHeard = ++clock;
    telsxMessageStreamDecoderWrite( decoder, toBuffer( { piece, std::size_t( length ) } ).get() );
    while ( Message message{ connection.over ? nullptr : telsxMessageStreamDecoderRead( decoder ) } )
        receive( std::move( message ), Peer{ id, connection.address } );
    // Behind a bad message nothing tells where the next one begins.
    if ( telsxMessageStreamDecoderError( decoder )
         || telsxMessageStreamDecoderLength( decoder ) >= int64_t( maxMessage ) )
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
    bool accepted = connection.socket.get() >= 0;
    // Without a free descriptor the waiting one would be heard of again and again.
    bool full = accepted ? connections.size() == maxConnections : errno == EMFILE || errno == ENFILE;
    auto quieter = []( const auto &a, const auto &b ) { return a.second.lastHeard < b.second.lastHeard; };
    if ( full && !connections.empty() )
        connections.erase( std::min_element( connections.begin(), connections.end(), quieter ) );
    else
        deaf = full;
    if ( !accepted )
        return;
    connection.lastHeard = ++clock;
    connections.emplace( ++lastConnection, std::move( connection ) );
}
