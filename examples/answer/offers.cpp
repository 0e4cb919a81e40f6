#include "offers.hpp"

#include <map>
#include <sstream>
#include <vector>

#include <strings.h>

#include "responses.hpp"

namespace
{

const char events[] = "telephone-event/8000";

struct Stream
{
    std::string media, port, protocol;
    std::vector<std::string> formats;
    std::map<std::string, std::string> codecs = { { "0", "PCMU/8000" }, { "8", "PCMA/8000" } }; // by format
};

// The answer to a stream, with those of its formats that are understood; empty if none of them is audio.
std::string take( const Stream &stream )
{
    std::string formats, lines;
    bool sound = false;
    for ( const std::string &format : stream.formats )
    {
        auto codec = stream.codecs.find( format );
        for ( const char *known : { "PCMU/8000", "PCMA/8000", events } )
        {
            if ( codec == stream.codecs.end() || strcasecmp( codec->second.c_str(), known ) != 0 )
                continue;
            sound |= known != events;
            formats += ' ' + format;
            if ( format != "0" && format != "8" )
                lines += "a=rtpmap:" + format + ' ' + known + "\r\n";
        }
    }
    bool fits = sound && stream.media == "m=audio" && stream.port != "0" && stream.protocol == "RTP/AVP";
    return fits ? "m=audio 9 RTP/AVP" + formats + "\r\n" + lines + "a=inactive\r\n" : "";
}

std::string refuseStream( const Stream &stream )
{
    std::string line = stream.media + " 0 " + stream.protocol;
    for ( const std::string &format : stream.formats )
        line += ' ' + format;
    return line + "\r\n";
}

Answer answerToOffer( const std::string &offer )
{
    std::istringstream lines( offer );
    std::string times;
    std::vector<Stream> streams;
    for ( std::string line; std::getline( lines, line ); )
    {
        std::istringstream words( line );
        std::string first, second, third;
        words >> first >> second >> third;
        if ( first.rfind( "t=", 0 ) == 0 )
            times.append( first ).append( " " ).append( second ).append( "\r\n" );
        else if ( first.rfind( "m=", 0 ) == 0 )
        {
            streams.push_back( { first, second, third, {} } );
            while ( words >> first )
                streams.back().formats.push_back( first );
            if ( streams.back().formats.empty() )
                return { 400 };
        }
        else if ( first.rfind( "a=rtpmap:", 0 ) == 0 && !streams.empty() )
        {
            if ( second.size() > 2 && second.compare( second.size() - 2, 2, "/1" ) == 0 )
                second.resize( second.size() - 2 ); // one channel is the default
            streams.back().codecs[first.substr( 9 )] = second;
        }
    }
    if ( offer.rfind( "v=0", 0 ) != 0 || times.empty() )
        return { 400 };

    Answer answer{ 0, times };
    bool wanted = false, taken = false;
    for ( const Stream &stream : streams )
    {
        std::string text = taken ? "" : take( stream );
        wanted |= stream.port != "0";
        taken |= !text.empty();
        answer.text += text.empty() ? refuseStream( stream ) : text;
    }
    return wanted && !taken ? Answer{ 488 } : answer;
}

} // namespace

Answer answerTo( const Request &request )
{
    Owned body( telsxMessageBody( request.message.get() ) );
    if ( !body || rtBufferLength( body.get() ) == 0 )
        return {
            0, "t=0 0\r\nm=audio 9 RTP/AVP 0 8 101\r\na=rtpmap:101 telephone-event/8000\r\na=inactive\r\n"
        };
    // The raw line is read, since bad parameters do no harm here. (Another body is refused even if Content-Disposition
    // says that it is optional.)
    Owned header( telsxMessageHeaderCstr( request.message.get(), "Content-Type", -1 ) );
    std::string type = header ? toUtf8( Owned( telsxMessageHeaderLastLine( header.get() ) ) ) : "";
    if ( strcasecmp( type.substr( 0, type.find_first_of( "; \t" ) ).c_str(), "application/sdp" ) != 0 )
        return { 415 };
    return answerToOffer( toBytes( body ) );
}

void addSession( Message &response, const SocketAddress &address, uint64_t id, int64_t version,
                 const std::string &streams )
{
    setLine( response, "Content-Type", toString( "application/sdp" ) );
    std::string host = ( address.isV6() ? "IN IP6 " : "IN IP4 " ) + address.host();
    std::string session = "v=0\r\no=answer " + std::to_string( id ) + ' ' + std::to_string( version ) + ' '
                          + host + "\r\ns=-\r\nc=" + host + "\r\n" + streams;
    telsxMessageSetBody( response.address(), toBuffer( session ).get() );
}
