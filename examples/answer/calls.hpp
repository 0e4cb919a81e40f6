// Calls, from their INVITE until a while after their BYE.
#pragma once

#include <map>
#include <set>

#include "requests.hpp"

class Calls
{
public:
    // Calls ring for the time and are then accepted, unless the caller cancels them.
    Calls( Network &to, const SocketAddress &here, std::chrono::milliseconds ring )
        : network( to ), address( here ), ringTime( ring )
    {
    }

    // What to do with a request of the method. A BYE must be one that follows.
    void invite( Request &request );
    void acknowledge( const Request &request );
    void cancel( Request &request );
    void bye( const Request &request );

    // Whether the request is the next in its dialog (RFC 3261, 12.2.2); if not, it is answered.
    bool follows( const Request &request );

    // Accepts the calls that have rung for long enough, and resends final responses that nobody has acknowledged (RFC
    // 3261, 13.3.1.4 and 17.2.1). Returns when it should be called again.
    Clock::time_point tick();

private:
    // INVITEs without an ACK and the bytes of their responses; calls. When there is no more room, new calls are refused
    // for now.
    static constexpr std::size_t maxInvites = 50000, maxBytes = 128 << 20, maxCalls = 200000;
    static constexpr Clock::duration t1 = 500ms, patience = 64 * t1; // RFC 3261, 17.1.1.1
    static constexpr Clock::duration maxTime = 24h;                  // of a call

    // What is due, by time, with the key of the call.
    using Agenda = std::set<std::pair<Clock::time_point, uint64_t>>;

    // An INVITE until its ACK. Its responses are kept as bytes, which are smaller than the objects.
    struct Invite
    {
        int64_t number;
        Peer peer;
        std::string response, taken; // the last one that was sent, and the 200
        std::size_t bytes = 0;       // of both
        Clock::time_point due = {};  // when it is accepted, then when the response is resent
        Clock::duration pause = t1;
        bool final = false;
    };
    using Invites = std::map<uint64_t, Invite>;

    // A call from its INVITE until a while after its BYE, since that may arrive twice.
    struct Call
    {
        uint64_t caller, random;  // as in its first INVITE
        uint64_t transaction = 0; // of the last one
        int64_t number = 0;       // of the last request
        int64_t version = 0;      // of the session
        bool over = false;
        Clock::time_point end = {}; // when it is forgotten
    };

    bool full( const Call *call );
    Call *find( const Request &request );
    void keep( uint64_t key, Call &call, bool over, Clock::duration time );
    void forget( uint64_t key );
    void forget( Invites::iterator invite );
    void schedule( uint64_t key, Invite &invite, Clock::time_point due );
    Message respondInDialog( const Request &request, int64_t statusCode );
    void finish( uint64_t key, Invite &invite, bool taken );
    void answer( const Request &request, const Message &response );
    void answer( const Request &request, int64_t statusCode );

    Network &network;
    SocketAddress address;
    std::chrono::milliseconds ringTime;
    Invites invites;
    std::size_t bytes = 0; // of the responses that they keep
    Agenda dues;           // of the INVITEs
    std::map<uint64_t, Call> calls;
    Agenda ends[2]; // of the calls, and of those that are over
};
