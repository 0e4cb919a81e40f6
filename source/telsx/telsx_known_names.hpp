// The header names that messages usually have, as constants, found by their bytes without making a string.
#pragma once

#include <array>
#include <cstdlib>
#include <string_view>

#include "rt/rt_string.hpp"

namespace telsx
{

// One way to write a known name, in lower case, and the canonical name (telsxMessageHeaderNameNormalize).
struct KnownName
{
    std::string_view spelling;
    const RT_STRING_ *name;
};

// Compact forms stand beside their long names.
inline constexpr KnownName knownNames[] = {
    { "accept", &rt::literalObject<"Accept"> },
    { "accept-contact", &rt::literalObject<"Accept-Contact"> },
    { "a", &rt::literalObject<"Accept-Contact"> },
    { "accept-encoding", &rt::literalObject<"Accept-Encoding"> },
    { "accept-language", &rt::literalObject<"Accept-Language"> },
    { "alert-info", &rt::literalObject<"Alert-Info"> },
    { "allow", &rt::literalObject<"Allow"> },
    { "allow-events", &rt::literalObject<"Allow-Events"> },
    { "u", &rt::literalObject<"Allow-Events"> },
    { "authorization", &rt::literalObject<"Authorization"> },
    { "call-id", &rt::literalObject<"Call-Id"> },
    { "i", &rt::literalObject<"Call-Id"> },
    { "call-info", &rt::literalObject<"Call-Info"> },
    { "contact", &rt::literalObject<"Contact"> },
    { "m", &rt::literalObject<"Contact"> },
    { "content-disposition", &rt::literalObject<"Content-Disposition"> },
    { "content-encoding", &rt::literalObject<"Content-Encoding"> },
    { "e", &rt::literalObject<"Content-Encoding"> },
    { "content-length", &rt::literalObject<"Content-Length"> },
    { "l", &rt::literalObject<"Content-Length"> },
    { "content-type", &rt::literalObject<"Content-Type"> },
    { "c", &rt::literalObject<"Content-Type"> },
    { "cseq", &rt::literalObject<"Cseq"> },
    { "date", &rt::literalObject<"Date"> },
    { "diversion", &rt::literalObject<"Diversion"> },
    { "error-info", &rt::literalObject<"Error-Info"> },
    { "event", &rt::literalObject<"Event"> },
    { "o", &rt::literalObject<"Event"> },
    { "expires", &rt::literalObject<"Expires"> },
    { "from", &rt::literalObject<"From"> },
    { "f", &rt::literalObject<"From"> },
    { "history-info", &rt::literalObject<"History-Info"> },
    { "identity", &rt::literalObject<"Identity"> },
    { "y", &rt::literalObject<"Identity"> },
    { "identity-info", &rt::literalObject<"Identity-Info"> },
    { "n", &rt::literalObject<"Identity-Info"> },
    { "in-reply-to", &rt::literalObject<"In-Reply-To"> },
    { "max-forwards", &rt::literalObject<"Max-Forwards"> },
    { "mime-version", &rt::literalObject<"Mime-Version"> },
    { "min-expires", &rt::literalObject<"Min-Expires"> },
    { "min-se", &rt::literalObject<"Min-Se"> },
    { "organization", &rt::literalObject<"Organization"> },
    { "p-access-network-info", &rt::literalObject<"P-Access-Network-Info"> },
    { "p-asserted-identity", &rt::literalObject<"P-Asserted-Identity"> },
    { "p-called-party-id", &rt::literalObject<"P-Called-Party-Id"> },
    { "p-charging-vector", &rt::literalObject<"P-Charging-Vector"> },
    { "p-preferred-identity", &rt::literalObject<"P-Preferred-Identity"> },
    { "path", &rt::literalObject<"Path"> },
    { "priority", &rt::literalObject<"Priority"> },
    { "privacy", &rt::literalObject<"Privacy"> },
    { "proxy-authenticate", &rt::literalObject<"Proxy-Authenticate"> },
    { "proxy-authorization", &rt::literalObject<"Proxy-Authorization"> },
    { "proxy-require", &rt::literalObject<"Proxy-Require"> },
    { "rack", &rt::literalObject<"Rack"> },
    { "reason", &rt::literalObject<"Reason"> },
    { "record-route", &rt::literalObject<"Record-Route"> },
    { "refer-to", &rt::literalObject<"Refer-To"> },
    { "r", &rt::literalObject<"Refer-To"> },
    { "referred-by", &rt::literalObject<"Referred-By"> },
    { "b", &rt::literalObject<"Referred-By"> },
    { "reject-contact", &rt::literalObject<"Reject-Contact"> },
    { "j", &rt::literalObject<"Reject-Contact"> },
    { "remote-party-id", &rt::literalObject<"Remote-Party-Id"> },
    { "replaces", &rt::literalObject<"Replaces"> },
    { "reply-to", &rt::literalObject<"Reply-To"> },
    { "request-disposition", &rt::literalObject<"Request-Disposition"> },
    { "d", &rt::literalObject<"Request-Disposition"> },
    { "require", &rt::literalObject<"Require"> },
    { "retry-after", &rt::literalObject<"Retry-After"> },
    { "route", &rt::literalObject<"Route"> },
    { "rseq", &rt::literalObject<"Rseq"> },
    { "server", &rt::literalObject<"Server"> },
    { "service-route", &rt::literalObject<"Service-Route"> },
    { "session-expires", &rt::literalObject<"Session-Expires"> },
    { "x", &rt::literalObject<"Session-Expires"> },
    { "session-id", &rt::literalObject<"Session-Id"> },
    { "sip-etag", &rt::literalObject<"Sip-Etag"> },
    { "sip-if-match", &rt::literalObject<"Sip-If-Match"> },
    { "subject", &rt::literalObject<"Subject"> },
    { "s", &rt::literalObject<"Subject"> },
    { "subscription-state", &rt::literalObject<"Subscription-State"> },
    { "supported", &rt::literalObject<"Supported"> },
    { "k", &rt::literalObject<"Supported"> },
    { "timestamp", &rt::literalObject<"Timestamp"> },
    { "to", &rt::literalObject<"To"> },
    { "t", &rt::literalObject<"To"> },
    { "unsupported", &rt::literalObject<"Unsupported"> },
    { "user-agent", &rt::literalObject<"User-Agent"> },
    { "via", &rt::literalObject<"Via"> },
    { "v", &rt::literalObject<"Via"> },
    { "warning", &rt::literalObject<"Warning"> },
    { "www-authenticate", &rt::literalObject<"Www-Authenticate"> },
};

constexpr char lowerAscii( char ch ) { return ch >= 'A' && ch <= 'Z' ? static_cast<char>( ch + 0x20 ) : ch; }

// Where a name stands in the table: its length and three of its characters tell the known ones apart. The
// factors were found by trying; the table's check would fail for bad ones.
constexpr std::size_t knownNameSlots = 512;
constexpr std::size_t knownNameSlot( std::string_view name )
{
    auto at = [name]( std::size_t i ) { return static_cast<std::size_t>( lowerAscii( name[i] ) ); };
    std::size_t size = name.size();
    return ( size * 8 + at( 0 ) * 111 + at( size / 2 ) * 316 + at( size - 1 ) * 327 ) % knownNameSlots;
}

// The names in their slots; an empty spelling in the others.
consteval std::array<KnownName, knownNameSlots> makeKnownNameTable()
{
    std::array<KnownName, knownNameSlots> table = {};
    for ( const KnownName &known : knownNames )
    {
        KnownName &slot = table[knownNameSlot( known.spelling )];
        if ( !slot.spelling.empty() )
            std::abort(); // two names share a slot
        slot = known;
    }
    return table;
}

inline constexpr std::array<KnownName, knownNameSlots> knownNameTable = makeKnownNameTable();

// The canonical name, a constant, of a known name in any spelling, or null.
inline RT_STRING findKnownName( std::string_view name )
{
    if ( name.empty() )
        return nullptr;
    const KnownName &slot = knownNameTable[knownNameSlot( name )];
    if ( slot.spelling.size() != name.size() )
        return nullptr;
    for ( std::size_t i = 0; i < name.size(); ++i )
        if ( lowerAscii( name[i] ) != slot.spelling[i] )
            return nullptr;
    return const_cast<RT_STRING>( slot.name );
}

} // namespace telsx
