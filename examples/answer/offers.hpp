// Session descriptions: answers to offers (RFC 3264, 6), and their place in a message.
#pragma once

#include "requests.hpp"

struct Answer
{
    int64_t statusCode = 0; // that refuses the offer, or 0
    std::string text = {};  // the times and streams
};

// The answer to the offer in the request, or an offer if it has none. The first audio stream in PCMU or PCMA is
// accepted, but without any sound, and all others are refused; if no stream can be accepted, neither is the offer.
Answer answerTo( const Request &request );

void addSession( Message &response, const SocketAddress &address, uint64_t id, int64_t version,
                 const std::string &streams );
