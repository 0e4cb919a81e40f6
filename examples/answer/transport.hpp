// Messages from and to the network: one address and port, datagrams and TCP connections, one thread. What it holds is
// limited, whatever anybody sends.
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
    // The bytes that stand for the sender: for IPv6 the half of the address that it can't choose.
    std::string source() const;
    // False if the text is not an IP address.
    bool setHost( const char *text );
};

// A file descriptor, closed when the object is destroyed.
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

// Where a message came from, and where its responses go.
struct Peer
{
    uint64_t connection; // 0 for a datagram; never used again for another peer
    SocketAddress address;
    int64_t port = 5060; // of a new connection if that of the request is gone (RFC 3261, 18.2.2)
};

struct Arrival
{
    Message message;
    Peer peer;
    std::size_t datagram = 0; // its bytes; 0 for a message from a connection
    int64_t statusCode =
        0; // with which to refuse a message of which only the most important headers are there
};

using Receive = std::function<void( Arrival )>;

class Network
{
public:
    static constexpr std::size_t maxMessage = 65535;  // bytes; a longer one gets 513, and ends a connection
    static constexpr std::size_t maxDatagram = 65507; // bytes, with IPv4
    static constexpr std::size_t maxUnsent = 2 * maxMessage; // bytes, to a peer that doesn't read
    static constexpr std::size_t maxConnections = 256;       // a further one takes the place of another one
    static constexpr Clock::duration patience = 10s, linger = 5s; // for the first message; after a bad one

    // Listens on the address; if its port is 0, picks one and puts it there. False and errno if it can't. From now on
    // SIGINT and SIGTERM are events.
    bool open( SocketAddress &address );

    // Waits for messages until the time and calls receive for each; false when a signal asks to end.
    bool wait( Clock::time_point until, const Receive &receive );

    // Sends a datagram, or uses a connection if the message is too long for one. A connection that is gone is replaced
    // by a new one. What can't be sent is lost.
    void send( const Peer &peer, const std::string &bytes );

private:
    struct Connection
    {
        Descriptor socket;
        SocketAddress address;
        Owned<TELSX_MESSAGE_STREAM_DECODER> decoder{ telsxMessageStreamDecoderCreate() };
        std::string begun = {}, unsent = {};                  // begun: the bytes that the decoder holds
        Clock::time_point deadline = Clock::now() + patience; // max() from the first message on
        uint64_t lastHeard = 0;
        bool deaf = false; // after a bad message
        bool over = false;
    };
    using Connections = std::map<uint64_t, Connection>;

    void readDatagrams( const Receive &receive );
    void readStream( uint64_t id, Connection &connection, const Receive &receive );
    static void flush( Connection &connection );
    void acceptConnection();
    Connections::iterator connectTo( const Peer &peer );
    Connections::iterator add( uint64_t id, Connection connection );
    void dropOne();

    Descriptor signals, listener, datagrams;
    SocketAddress own; // with port 0
    Connections connections;
    uint64_t lastConnection = 0, clock = 0; // the clock counts arrivals
    bool deaf = false;                      // to new connections, for one round
    char piece[maxMessage];
};
