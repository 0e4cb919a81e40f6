// Findings for programs.
#include "json.hpp"
#include "report.hpp"

namespace tools
{

namespace
{

class CheckJson : public Report
{
public:
    explicit CheckJson( const Options &chosen ) : options( chosen ) {}

    bool add( const Cut &message, const Place &place ) override
    {
        std::vector<Finding> findings = findIn( message, options.silenced );
        for ( const Finding &finding : findings )
        {
            Json json;
            json.begin( '{' );
            addPlace( json, place );
            addFinding( json, finding, place );
            print( json.end( '}' ).take() + '\n' );
        }
        return areBad( findings );
    }

private:
    Options options;
};

} // namespace

void addPlace( Json &json, const Place &place )
{
    json.name( "file" ).text( place.file );
    if ( !place.isCaptured() )
        return;
    json.name( "packet" ).number( place.packet );
    json.name( "time" ).text( timeOf( place ) );
    json.name( "transport" ).text( place.transport );
    json.name( "source" ).text( toString( place.source ) );
    json.name( "destination" ).text( toString( place.destination ) );
}

void addFinding( Json &json, const Finding &finding, const Place &place )
{
    json.name( "offset" ).number( place.offset + finding.offset );
    json.name( "line" ).number( place.line + finding.line - 1 );
    json.name( "column" ).number( finding.line == 1 ? place.column + finding.column - 1 : finding.column );
    json.name( "severity" ).text( severityName( finding.severity ) );
    json.name( "code" ).text( finding.code );
    if ( !finding.header.empty() )
        json.name( "header" ).text( finding.header );
    json.name( "text" ).text( finding.text );
    json.name( "reference" ).text( finding.reference );
}

std::unique_ptr<Report> makeCheckJson( const Options &options )
{
    return std::make_unique<CheckJson>( options );
}

} // namespace tools
