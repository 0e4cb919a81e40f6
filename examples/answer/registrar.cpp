#include "registrar.hpp"

#include <algorithm>

#include "responses.hpp"

namespace
{

template <class TABLE>
void forget( TABLE &table, Clock::time_point now )
{
    for ( auto at = table.begin(); at != table.end(); )
        at = now >= at->second.end ? table.erase( at ) : std::next( at );
}

} // namespace

Message Registrar::bind( const Request &request )
{
    TELSX_MESSAGE message = request.message.get();
    auto now = Clock::now();
    forget( registrations, now );
    std::string who = toUtf8( Owned( telsxHeaderToIri( request.to.get() ) ) );
    auto known = registrations.find( who );
    // What is changed is a copy, which counts when all of the request is good.
    Registration next;
    if ( known != registrations.end() )
        next = known->second;
    next.end = now + std::chrono::seconds( maxExpires );
    forget( next.contacts, now );
    std::hash<std::string> hash;
    uint64_t callId = hash( toUtf8( Owned( telsxHeaderCallIdCallId( request.callId.get() ) ) ) );
    auto newer = [&]( const auto &contact ) // than the request, unless that has just come twice
    {
        return contact.second.callId == callId && contact.second.number >= request.number
               && contact.second.transaction != request.transaction;
    };

    Owned contacts( telsxHeaderContactTryDecodeFromMessage( message ) );
    Owned expires( telsxHeaderExpiresTryDecodeFromMessage( message ) );
    int64_t usual = expires ? telsxHeaderExpiresDeltaSeconds( expires.get() ) : maxExpires;
    bool star = contacts && telsxHeaderContactIsStarForm( contacts.get() );
    if ( ( !contacts && telsxHeaderContactPresentInMessage( message ) ) || ( star && usual != 0 ) )
        return refuse( request, 400 );
    if ( star && std::any_of( next.contacts.begin(), next.contacts.end(), newer ) )
        return refuse( request, 500 );
    if ( star )
        next.contacts.clear();
    for ( int64_t i = 0; contacts && i < telsxHeaderContactContactsLength( contacts.get() ); ++i )
    {
        Owned contact( telsxHeaderContactTryDecodeContactAt( contacts.get(), i ) );
        if ( !contact )
            return refuse( request, 400 );
        int64_t own = telsxContactExpires( contact.get() );
        std::chrono::seconds time( std::min( own == -1 ? usual : own, maxExpires ) );
        std::string iri = toUtf8( Owned( telsxContactIri( contact.get() ) ) );
        auto &bound = *next.contacts.try_emplace( iri ).first;
        if ( newer( bound ) )
            return refuse( request, 500 );
        bound.second = { callId, request.transaction, request.number, now + time };
    }

    Message response = respond( request, 200 );
    Owned held( telsxHeaderContactCreate() );
    forget( next.contacts, now );
    for ( const auto &[iri, binding] : next.contacts )
    {
        Owned contact( telsxContactCreate( toString( iri ).get() ) );
        auto left = std::chrono::ceil<std::chrono::seconds>( binding.end - now );
        telsxContactSetExpires( contact.address(), left.count() );
        telsxHeaderContactAppendContact( held.address(), contact.get() );
    }
    bool full = known == registrations.end() && registrations.size() >= maxRegistrations;
    if ( !next.contacts.empty() && ( full || next.contacts.size() > maxContacts ) )
        return refuseForNow( request, 503, 60 );
    if ( next.contacts.empty() )
        registrations.erase( who );
    else
    {
        telsxHeaderContactEncodeToMessage( held.get(), response.address() );
        registrations[who] = std::move( next );
    }
    return response;
}
