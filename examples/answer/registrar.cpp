#include "registrar.hpp"

#include <algorithm>

#include "responses.hpp"

namespace
{

using Address = Owned<TELSX_SIP_IRI>; // null if it is not a SIP address

// The canonical form of the address (RFC 3261, 10.3, step 5). An address of another scheme is its own.
std::string toAddressOfRecord( const String &iri )
{
    Address address( telsxSipIriTryDecode( iri.get() ) );
    if ( !address )
        return toUtf8( iri );
    Owned record( telsxSipIriAddressOfRecord( address.get() ) );
    return toUtf8( Owned( telsxSipIriEncode( record.get() ) ) );
}

// Whether two contacts are the same (RFC 3261, 10.3, step 7).
bool areSame( const std::string &iriA, const std::string &iriB )
{
    Address a( telsxSipIriTryDecode( toString( iriA ).get() ) );
    Address b( telsxSipIriTryDecode( toString( iriB ).get() ) );
    return a && b ? telsxSipIriEquivalent( a.get(), b.get() ) : iriA == iriB;
}

} // namespace

Message Registrar::bind( const Request &request )
{
    auto now = Clock::now();
    forgetEnded( now );
    std::string who = toAddressOfRecord( Owned( telsxHeaderToIri( request.to.get() ) ) );
    if ( who.size() > maxLength )
        return refuse( request, 404 );
    // The changes are made to a copy, which takes effect only if the whole request is good.
    auto known = registrations.find( who );
    Contacts contacts;
    if ( known != registrations.end() )
        contacts = known->second.contacts;
    contacts.erase( std::remove_if( contacts.begin(), contacts.end(),
                                    [now]( const Binding &binding ) { return now >= binding.end; } ),
                    contacts.end() );
    int64_t statusCode = change( request, contacts, now );
    if ( statusCode == 503 )
        return refuseForNow( request, statusCode, 60 );
    if ( statusCode != 200 )
        return refuse( request, statusCode );

    Message response = respond( request, 200 );
    Owned date( telsxHeaderDateCreateFromCurrentTime() );
    telsxHeaderDateEncodeToMessage( date.get(), response.address() );
    Owned held( telsxHeaderContactCreate() );
    for ( const Binding &binding : contacts )
    {
        Owned contact( telsxContactCreate( toString( binding.iri ).get() ) );
        auto left = std::chrono::ceil<std::chrono::seconds>( binding.end - now );
        telsxContactSetExpires( contact.address(), left.count() );
        telsxHeaderContactAppendContact( held.address(), contact.get() );
    }
    if ( !contacts.empty() )
        telsxHeaderContactEncodeToMessage( held.get(), response.address() );
    // The sender of a datagram may be forged: its victim must not be sent more than the forger could send itself.
    if ( request.datagram
         && encode( response ).size() > std::min( Network::maxDatagram, maxGrowth * request.datagram ) )
        return refuse( request, 500 );
    // A request that only asks does not make its sender the one to whom the registration counts.
    if ( telsxHeaderContactPresentInMessage( request.message.get() )
         && !keep( who, std::move( contacts ), request.peer.address.source() ) )
        return refuseForNow( request, 503, 60 );
    return response;
}

int64_t Registrar::change( const Request &request, Contacts &contacts, Clock::time_point now )
{
    TELSX_MESSAGE message = request.message.get();
    uint64_t callId =
        std::hash<std::string>()( toUtf8( Owned( telsxHeaderCallIdCallId( request.callId.get() ) ) ) );
    auto newer = [&]( const Binding &binding ) // than the request, unless the same one has arrived twice
    {
        return binding.callId == callId && binding.number >= request.number
               && binding.transaction != request.transaction;
    };
    Owned header( telsxHeaderContactTryDecodeFromMessage( message ) );
    Owned expires( telsxHeaderExpiresTryDecodeFromMessage( message ) );
    int64_t usual = expires ? telsxHeaderExpiresDeltaSeconds( expires.get() ) : maxExpires;
    if ( !header )
        return telsxHeaderContactPresentInMessage( message ) ? 400 : 200;
    if ( telsxHeaderContactIsStarForm( header.get() ) )
    {
        if ( usual != 0 )
            return 400;
        if ( std::any_of( contacts.begin(), contacts.end(), newer ) )
            return 500;
        contacts.clear();
        return 200;
    }
    for ( int64_t i = 0; i < telsxHeaderContactContactsLength( header.get() ); ++i )
    {
        Owned contact( telsxHeaderContactTryDecodeContactAt( header.get(), i ) );
        if ( !contact )
            return 400;
        int64_t time = telsxContactExpires( contact.get() );
        std::string iri = toUtf8( Owned( telsxContactIri( contact.get() ) ) );
        if ( iri.size() > maxLength )
            return 403;
        auto bound = std::find_if( contacts.begin(), contacts.end(),
                                   [&]( const Binding &binding ) { return areSame( binding.iri, iri ); } );
        if ( bound != contacts.end() && newer( *bound ) )
            return 500;
        if ( bound != contacts.end() )
            contacts.erase( bound );
        std::chrono::seconds left( std::min( time == -1 ? usual : time, maxExpires ) );
        if ( left > 0s )
            contacts.push_back( { iri, callId, request.transaction, request.number, now + left } );
        if ( contacts.size() > maxContacts )
            return 503;
    }
    return 200;
}

bool Registrar::keep( const std::string &who, Contacts contacts, const std::string &source )
{
    auto known = registrations.find( who );
    if ( known != registrations.end() )
        forget( known );
    if ( contacts.empty() )
        return true;
    auto own = sources.find( source );
    std::size_t count = own == sources.end() ? 0 : own->second.size();
    bool full = registrations.size() >= maxRegistrations;
    if ( full && count == 0 )
        return false;
    if ( full || count >= maxOfSource )
        forget( registrations.find( own->second.begin()->second ) );
    Registration &next = registrations[who] = { std::move( contacts ), {}, source, ++lastAge };
    for ( const Binding &binding : next.contacts )
        next.end = std::max( next.end, binding.end );
    sources[source].emplace( next.age, who );
    return true;
}

void Registrar::forget( Registrations::iterator at )
{
    auto own = sources.find( at->second.source );
    own->second.erase( at->second.age );
    if ( own->second.empty() )
        sources.erase( own );
    registrations.erase( at );
}

// Goes through all registrations, and therefore not for each request.
void Registrar::forgetEnded( Clock::time_point now )
{
    if ( now < nextSweep )
        return;
    nextSweep = now + 1s;
    for ( auto at = registrations.begin(); at != registrations.end(); )
        if ( auto here = at++; now >= here->second.end )
            forget( here );
}
