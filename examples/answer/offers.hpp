// Session descriptions: answers to offers (RFC 3264, 6), and how they stand in a message.
#pragma once

#include <optional>

#include "requests.hpp"

// The times and streams with which to answer the offer in the request, or to make one if it has none; nothing
// if the offer is bad. The first stream of sound in PCMU is taken, without sound, and all others are refused.
std::optional<std::string> answerTo( const Request &request );

// Whether the request has a body, and whether that is a session description.
bool hasBody( const Request &request );
bool hasSession( const Request &request );

void addSession( Message &response, const SocketAddress &address, uint64_t id, int64_t version,
                 const std::string &streams );
