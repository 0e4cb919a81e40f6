#include "offers.hpp"

#include <sstream>

#include <strings.h>

namespace
{

// The times and streams with which to answer an offer (RFC 3264, 6); nothing if it is bad. The first stream of
// sound in PCMU is taken, without sound, and all others are refused.
std::optional<std::string> answerToOffer( const std::string &offer )
{
    std::istringstream lines( offer );
    std::string line, result;
    bool taken = false;
    while ( std::getline( lines, line ) )
    {
        std::istringstream words( line );
        std::string first, port, protocol, format, formats;
        words >> first >> port >> protocol;
        if ( first.rfind( "t=", 0 ) == 0 )
            result.append( first ).append( 1, ' ' ).append( port ).append( "\r\n" );
        if ( first.rfind( "m=", 0 ) != 0 )
            continue;
        bool fits = false;
        for ( ; words >> format; formats += ' ' + format )
            fits |= format == "0";
        if ( formats.empty() )
            return std::nullopt;
        fits = fits && !taken && first == "m=audio" && port != "0" && protocol == "RTP/AVP";
        taken |= fits;
        if ( fits )
            result.append( "m=audio 9 RTP/AVP 0\r\na=inactive\r\n" );
        else
            result.append( first ).append( " 0 " ).append( protocol ).append( formats ).append( "\r\n" );
    }
    bool good = offer.rfind( "v=0", 0 ) == 0 && result.rfind( "t=", 0 ) == 0;
    return good ? std::optional( result ) : std::nullopt;
}

} // namespace

std::optional<std::string> answerTo( const Request &request )
{
    if ( !hasBody( request ) )
        return "t=0 0\r\nm=audio 9 RTP/AVP 0\r\na=inactive\r\n";
    return answerToOffer( toBytes( Owned( telsxMessageBody( request.message.get() ) ) ) );
}

bool hasBody( const Request &request )
{
    Owned body( telsxMessageBody( request.message.get() ) );
    return body && rtBufferLength( body.get() ) > 0;
}

// There is no type for Content-Type: its line is read and set as it is. (Another body is refused even if
// Content-Disposition says that it is optional.)
bool hasSession( const Request &request )
{
    Owned header( telsxMessageHeaderCstr( request.message.get(), "Content-Type", -1 ) );
    std::string type = header ? toUtf8( Owned( telsxMessageHeaderLastLine( header.get() ) ) ) : "";
    return strcasecmp( type.substr( 0, type.find_first_of( "; \t" ) ).c_str(), "application/sdp" ) == 0;
}

void addSession( Message &response, const SocketAddress &address, uint64_t id, int64_t version,
                 const std::string &streams )
{
    Owned type( telsxMessageHeaderCreateCstr( "Content-Type", -1 ) );
    telsxMessageHeaderAppendLineCstr( type.address(), "application/sdp", -1 );
    telsxMessageSetHeader( response.address(), type.get() );
    std::string host = ( address.isV6() ? "IN IP6 " : "IN IP4 " ) + address.host();
    std::string session = "v=0\r\no=answer " + std::to_string( id ) + ' ' + std::to_string( version ) + ' '
                          + host + "\r\ns=-\r\nc=" + host + "\r\n" + streams;
    telsxMessageSetBody( response.address(), toBuffer( session ).get() );
}
