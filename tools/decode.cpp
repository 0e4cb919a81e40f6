// What messages say.
#include <sstream>

#include "common/readings.hpp"
#include "common/text_listing.hpp"
#include "json_listing.hpp"
#include "report.hpp"

namespace tools
{

namespace
{

// Wire text, line by line.
std::string printableLines( std::string_view bytes )
{
    std::string result;
    while ( !bytes.empty() )
    {
        std::size_t end = bytes.find( "\r\n" );
        result += "  " + printable( bytes.substr( 0, end ) ) + '\n';
        bytes.remove_prefix( end == std::string_view::npos ? bytes.size() : end + 2 );
    }
    return result;
}

// A message that does not decode shows why.
class DecodeText : public Report
{
public:
    bool add( const Cut &cut, const Place &place ) override
    {
        Message message( telsxMessageTryDecode( toBuffer( cut.bytes ).get() ) );
        if ( !message )
        {
            printFindings( findIn( cut, {} ), cut, place );
            return true;
        }
        std::string where = ":" + std::to_string( place.line );
        if ( place.isCaptured() )
            where = "#" + std::to_string( place.packet ) + ": " + timeOf( place ) + ", " + place.transport
                    + " from " + toString( place.source ) + " to " + toString( place.destination );
        std::ostringstream out;
        TextListing listing( out );
        listRaw( message, listing );
        listTyped( message, listing );
        print( printable( place.file ) + where + '\n' + out.str() + "encoded\n"
               + printableLines( toBytes( Buffer( telsxMessageEncode( message.get() ) ) ) ) + '\n' );
        return false;
    }
};

class DecodeJson : public Report
{
public:
    bool add( const Cut &cut, const Place &place ) override
    {
        Message message( telsxMessageTryDecode( toBuffer( cut.bytes ).get() ) );
        Json json;
        json.begin( '{' );
        addPlace( json, place );
        if ( message )
        {
            json.name( "offset" ).number( place.offset ).name( "line" ).number( place.line );
            JsonListing listing( json );
            listRaw( message, listing );
            listTyped( message, listing );
        }
        else
        {
            // The first finding is the error.
            for ( const Finding &finding : findIn( { cut.bytes, false }, {} ) )
                if ( finding.severity == TELSX_FINDING_SEVERITY_ERROR )
                    addFinding( json, finding, place );
        }
        print( json.end( '}' ).take() + '\n' );
        return !message;
    }
};

} // namespace

std::unique_ptr<Report> makeDecodeText( const Options & ) { return std::make_unique<DecodeText>(); }
std::unique_ptr<Report> makeDecodeJson( const Options & ) { return std::make_unique<DecodeJson>(); }

} // namespace tools
