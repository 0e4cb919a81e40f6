// Responses, from what they take over to what explains a refusal to the caller.
#pragma once

#include "requests.hpp"

// What every response begins with (RFC 3261, 8.2.6).
Message respond( const Request &request, int64_t statusCode );

// A response that refuses a request, with what explains this to the caller.
Message refuse( const Request &request, int64_t statusCode );

// The same, with the seconds after which another attempt may succeed.
Message refuseForNow( const Request &request, int64_t statusCode, int64_t retryAfter );

// Sets a header that needs no type or has none.
void setLine( Message &response, const char *name, const String &line );

// Copies a header as it is, whether or not it would decode.
void copyHeader( const Request &request, const char *name, Message &response );

// What this side can do: Allow, Supported, Accept and its kin.
void addCapabilities( Message &response );

std::string encode( const Message &message );
