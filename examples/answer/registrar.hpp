// A registrar (RFC 3261, 10.3). Of a contact it returns the address and the expiry time.
#pragma once

#include <map>
#include <vector>

#include "requests.hpp"

class Registrar
{
public:
    // The response to a REGISTER, and what it changes.
    Message bind( const Request &request );

private:
    // Limits on addresses of record: in all, and for one sender, whose newest one replaces its oldest.
    static constexpr std::size_t maxRegistrations = 10000, maxOfSource = 1000;
    static constexpr std::size_t maxContacts = 5,
                                 maxLength = 200; // of an address of record; bytes of an address
    static constexpr std::size_t maxGrowth = 5;   // limit of a response, in multiples of its datagram
    static constexpr int64_t maxExpires = 3600;   // seconds

    // A contact, with the last request that has bound it, and when it expires.
    struct Binding
    {
        std::string iri;
        uint64_t callId = 0, transaction = 0;
        int64_t number = -1;
        Clock::time_point end = {};
    };
    using Contacts = std::vector<Binding>;

    struct Registration
    {
        Contacts contacts;
        Clock::time_point end; // of the last contact
        std::string source;    // of the last request
        uint64_t age;          // in the order of these
    };
    using Registrations = std::map<std::string, Registration>;

    // Adds what the request binds to the contacts, and removes what it unbinds; returns the status code of the
    // response.
    static int64_t change( const Request &request, Contacts &contacts, Clock::time_point now );
    // False if there is no room.
    bool keep( const std::string &who, Contacts contacts, const std::string &source );
    void forget( Registrations::iterator at );
    void forgetEnded( Clock::time_point now );

    Registrations registrations;                                    // by address of record
    std::map<std::string, std::map<uint64_t, std::string>> sources; // their addresses of record, by age
    uint64_t lastAge = 0;
    Clock::time_point nextSweep = {};
};
