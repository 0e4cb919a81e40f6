// Requests that can be answered: what their responses take over is present and valid.
#pragma once

#include <optional>

#include "transport.hpp"

struct Request
{
    Message message;
    Peer peer = {};
    std::size_t datagram = 0; // its bytes, 0 if it came over a connection
    int64_t statusCode = 0;   // with which the transport refuses it, or 0
    std::string method = {};
    Owned<TELSX_SIP_IRI> target = {}; // the Request-URI, or null if that is not a SIP address
    Owned<TELSX_HEADER_VIA> vias = {};
    Owned<TELSX_HEADER_FROM> from = {};
    Owned<TELSX_HEADER_TO> to = {};
    Owned<TELSX_HEADER_CALL_ID> callId = {};
    int64_t number = -1;      // in Cseq; -1 if that is bad or has another method
    std::string tag = {};     // in To, if there is one
    uint64_t key = 0;         // of the call: the tag of this side begins with it
    uint64_t random = 0;      // the rest of that tag
    uint64_t caller = 0;      // stands for Call-Id and the tag in From
    uint64_t transaction = 0; // the same if the request arrives twice (RFC 3261, 17.2.3)
    Owned<TELSX_HEADER_AUTHENTICATION_INFO> proof = {}; // for the 2xx to a client that has proved itself
};

// Nothing for a response, or for a request whose Via, From, To or Call-Id is bad or missing.
std::optional<Request> toRequest( Arrival arrival );

uint64_t randomNumber();

// The tag of this side.
std::string toTag( uint64_t key, uint64_t random );
