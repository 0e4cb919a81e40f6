// Responses, from what they take over to what tells a caller why.
#pragma once

#include "requests.hpp"

// What every response begins with (RFC 3261, 8.2.6).
Message respond( const Request &request, int64_t statusCode );

// A response that refuses a request, with what tells the caller why.
Message refuse( const Request &request, int64_t statusCode );

// The same with the seconds after which another try may succeed.
Message refuseForNow( const Request &request, int64_t statusCode, int64_t retryAfter );

// Sets a header that needs no type, or that there is none for.
void setLine( Message &response, const char *name, const String &line );

// Copies a header as it is, whether it would decode or not.
void copyHeader( const Request &request, const char *name, Message &response );

// What this side can do: Allow, Supported, Accept and its kin.
void addCapabilities( Message &response );

std::string encode( const Message &message );
