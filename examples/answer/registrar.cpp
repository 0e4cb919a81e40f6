#include "registrar.hpp"

#include <algorithm>
#include <cctype>

#include "responses.hpp"

namespace
{

// The canonical form of the address (RFC 3261, 10.3, step 5): without parameters, unescaped, with the scheme and the
// host in lower case.
std::string toAddressOfRecord( const std::string &iri )
{
    std::size_t colon = iri.find( ':' ), at = iri.find( '@' );
    std::size_t host = at == iri.npos ? colon : at;
    std::string result;
    for ( std::size_t i = 0, end = std::min( iri.find_first_of( ";?", host ), iri.size() ); i < end; ++i )
    {
        auto isHex = [&]( std::size_t index )
        { return std::isxdigit( static_cast<unsigned char>( iri[index] ) ); };
        if ( iri[i] == '%' && end - i > 2 && isHex( i + 1 ) && isHex( i + 2 ) )
        {
            result += static_cast<char>( std::stoi( iri.substr( i + 1, 2 ), nullptr, 16 ) );
            i += 2;
        }
        else if ( ( i < colon || i > host ) && iri[i] >= 'A' && iri[i] <= 'Z' )
            result += static_cast<char>( iri[i] - 'A' + 'a' );
        else
            result += iri[i];
    }
    return result;
}

} // namespace

Message Registrar::bind( const Request &request )
{
    auto now = Clock::now();
    forgetEnded( now );
    std::string who = toAddressOfRecord( toUtf8( Owned( telsxHeaderToIri( request.to.get() ) ) ) );
    if ( who.size() > maxLength )
        return refuse( request, 404 );
    // The changes are made to a copy, which takes effect only if the whole request is good.
    auto known = registrations.find( who );
    Contacts contacts;
    if ( known != registrations.end() )
        contacts = known->second.contacts;
    auto withoutEnded = [&]
    {
        for ( auto at = contacts.begin(); at != contacts.end(); )
            at = now >= at->second.end ? contacts.erase( at ) : std::next( at );
    };
    withoutEnded();
    int64_t statusCode = change( request, contacts, now );
    if ( statusCode != 200 )
        return refuse( request, statusCode );
    withoutEnded();
    if ( contacts.size() > maxContacts )
        return refuseForNow( request, 503, 60 );

    Message response = respond( request, 200 );
    Owned date( telsxHeaderDateCreateFromCurrentTime() );
    telsxHeaderDateEncodeToMessage( date.get(), response.address() );
    Owned held( telsxHeaderContactCreate() );
    for ( const auto &[iri, binding] : contacts )
    {
        Owned contact( telsxContactCreate( toString( iri ).get() ) );
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
    auto newer = [&]( const auto &contact ) // than the request, unless the same one has arrived twice
    {
        return contact.second.callId == callId && contact.second.number >= request.number
               && contact.second.transaction != request.transaction;
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
        auto &bound = *contacts.try_emplace( iri ).first;
        if ( newer( bound ) )
            return 500;
        std::chrono::seconds left( std::min( time == -1 ? usual : time, maxExpires ) );
        bound.second = { callId, request.transaction, request.number, now + left };
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
    for ( const auto &[iri, binding] : next.contacts )
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
