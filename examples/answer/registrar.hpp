// A registrar (RFC 3261, 10.3). Of a contact it gives back its address and until when it holds; addresses are the
// same if their texts are, not by the rules of RFC 3261, 19.1.4.
#pragma once

#include <map>

#include "requests.hpp"

class Registrar
{
public:
    // The response to a REGISTER, and what it changes.
    Message bind( const Request &request );

private:
    static constexpr std::size_t maxRegistrations = 500, maxContacts = 10; // of one
    static constexpr int64_t maxExpires = 3600;                            // seconds

    // A contact, by the last request that has bound it, and until when it holds.
    struct Binding
    {
        uint64_t callId = 0, transaction = 0;
        int64_t number = -1;
        Clock::time_point end = {};
    };

    // The contacts of an address; the end is not before theirs.
    struct Registration
    {
        std::map<std::string, Binding> contacts;
        Clock::time_point end;
    };

    std::map<std::string, Registration> registrations; // by the address in To
};
