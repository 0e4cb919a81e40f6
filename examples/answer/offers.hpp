// Session descriptions: answers to offers (RFC 3264, 6), and how they stand in a message.
#pragma once

#include "requests.hpp"

struct Answer
{
    int64_t statusCode = 0; // with which to refuse the offer, or 0
    std::string text = {};  // the times and streams
};

// The answer to the offer in the request, or an offer if it has none. The first stream of sound in PCMU or PCMA
// is taken, without sound, and all others are refused; with no stream that can be taken the offer is.
Answer answerTo( const Request &request );

void addSession( Message &response, const SocketAddress &address, uint64_t id, int64_t version,
                 const std::string &streams );
