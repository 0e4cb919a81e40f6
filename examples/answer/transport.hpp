// Messages from and to the network: one address and port, datagrams and TCP connections, one thread. What it
// holds has a limit, whoever sends what.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <utility>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include "../example.hpp"

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

// The address of an IPv4 or IPv6 socket.
union SocketAddress
{
    sockaddr any;
    sockaddr_in v4;
    sockaddr_in6 v6 = {};

    bool isV6() const { return any.sa_family == AF_INET6; }
    socklen_t length() const { return isV6() ? sizeof v6 : sizeof v4; }
    int64_t port() const { return ntohs( isV6() ? v6.sin6_port : v4.sin_port ); }
    void setPort( int64_t port ) { ( isV6() ? v6.sin6_port : v4.sin_port ) = htons( uint16_t( port ) ); }

    std::string host() const;
    // False if the text is no IP address.
    bool setHost( const char *text );
};

// A file descriptor, closed with the object.
class Descriptor
{
public:
    explicit Descriptor( int number = -1 ) : fd( number ) {}
    Descriptor( Descriptor &&other ) noexcept : fd( std::exchange( other.fd, -1 ) ) {}
    Descriptor &operator=( Descriptor &&other ) noexcept
    {
        std::swap( fd, other.fd );
        return *this;
    }
    ~Descriptor()
    {
        if ( fd >= 0 )
            close( fd );
    }
    int get() const { return fd; }

private:
    int fd;
};

// Where a message comes from, and where its answers go.
struct Peer
{
    uint64_t connection; // 0 for a datagram; never used again for another one
    SocketAddress address;
};

using Receive = std::function<void( Message, const Peer & )>;

class Network
{
public:
    static constexpr std::size_t maxMessage = 8192; // bytes; a longer one is ignored, and ends a connection
    static constexpr std::size_t maxUnsent = 65536; // bytes, to a peer that doesn't read
    static constexpr std::size_t maxConnections = 256; // a further one takes the place of the quietest

    // Listens there, on a port that it picks and puts there if it is 0; false and errno if it can't. SIGINT and
    // SIGTERM are events from now on.
    bool open( SocketAddress &address );

    // Waits for messages until the time is up and calls receive for each; false when a signal asks for the end.
    bool wait( int milliseconds, const Receive &receive );

    // Nothing happens if the connection is gone.
    void send( const Peer &peer, const std::string &bytes );

private:
    struct Connection
    {
        Descriptor socket;
        SocketAddress address;
        Owned<TELSX_MESSAGE_STREAM_DECODER> decoder{ telsxMessageStreamDecoderCreate() };
        std::string unsent = {};
        uint64_t lastHeard = 0;
        bool over = false;
    };

    void readDatagrams( const Receive &receive );
    void readStream( uint64_t id, Connection &connection, const Receive &receive );
    static void flush( Connection &connection );
    void acceptConnection();

    Descriptor signals, listener, datagrams;
    std::map<uint64_t, Connection> connections;
    uint64_t lastConnection = 0, clock = 0; // the clock counts what is heard
    bool deaf = false;                      // to new connections, for one round
    char piece[maxMessage + 1];
};
