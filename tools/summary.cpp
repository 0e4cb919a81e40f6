// Counts of messages and findings.
#include <algorithm>
#include <map>

#include "json.hpp"
#include "report.hpp"

namespace tools
{

namespace
{

struct Counts
{
    int64_t messages = 0;
    int64_t findings[3] = {}; // by severity

    int64_t all() const { return findings[0] + findings[1] + findings[2]; }
};

// Counts by name, for a limited number of names.
class Tally
{
public:
    static constexpr std::size_t maxNames = 1000, maxName = 200; // bytes

    Counts &operator[]( std::string_view name )
    {
        name = name.substr( 0, maxName );
        auto at = counts.find( name );
        if ( at == counts.end() )
            at = counts.try_emplace( counts.size() < maxNames ? std::string( name ) : "(others)" ).first;
        return at->second;
    }

    using Row = std::pair<std::string, Counts>;

    // Sorted, the largest first.
    template <class SIZE>
    std::vector<Row> rows( SIZE sizeOf ) const
    {
        std::vector<Row> result( counts.begin(), counts.end() );
        std::stable_sort( result.begin(), result.end(),
                          [&sizeOf]( const Row &a, const Row &b )
                          { return sizeOf( a.second ) > sizeOf( b.second ); } );
        return result;
    }

private:
    std::map<std::string, Counts, std::less<>> counts;
};

class Summary : public Report
{
public:
    explicit Summary( const Options &chosen ) : options( chosen ) {}

    bool add( const Cut &message, const Place & ) override
    {
        std::vector<Finding> findings = findIn( message, options.silenced );
        bool isUnreadable = !findings.empty() && findings.front().severity == TELSX_FINDING_SEVERITY_ERROR;
        ++total.messages;
        if ( isUnreadable )
            ++unreadable;
        else
            countStartLine( message.bytes );
        auto agent = headerValue( message.bytes, "user-agent", "" );
        if ( !agent )
            agent = headerValue( message.bytes, "server", "" );
        Counts &ofAgent = agents[agent && !agent->empty() ? *agent : "(none)"];
        ++ofAgent.messages;
        std::set<std::string_view> seen; // codes, so that each message counts once
        for ( const Finding &finding : findings )
        {
            Counts &ofCode = codes[finding.code];
            ofCode.messages += seen.insert( finding.code ).second;
            for ( Counts *each : { &total, &ofAgent, &ofCode } )
                ++each->findings[finding.severity];
        }
        return areBad( findings );
    }

    void finish() override
    {
        if ( options.json )
            printJson();
        else
            printText();
    }

private:
    void countStartLine( std::string_view bytes )
    {
        std::string_view word = bytes.substr( 0, bytes.find( ' ' ) );
        if ( word.find( '/' ) == std::string_view::npos )
            ++methods[word].messages;
        else
            ++statuses[bytes.substr( word.size() + 1, 3 )].messages;
    }

    static int64_t messagesOf( const Counts &counts ) { return counts.messages; }
    static int64_t findingsOf( const Counts &counts ) { return counts.all(); }

    static void line( int64_t number, const std::string &name )
    {
        std::string digits = std::to_string( number );
        print( std::string( digits.size() < 12 ? 12 - digits.size() : 0, ' ' ) + digits + "  "
               + printable( name ) + '\n' );
    }

    void printText() const
    {
        print( "messages: " + std::to_string( total.messages ) + '\n' );
        for ( const auto &[name, counts] : methods.rows( messagesOf ) )
            line( counts.messages, name );
        for ( const auto &[name, counts] : statuses.rows( messagesOf ) )
            line( counts.messages, name );
        if ( unreadable )
            line( unreadable, "unreadable" );
        print( "errors: " + std::to_string( total.findings[0] )
               + ", warnings: " + std::to_string( total.findings[1] )
               + ", remarks: " + std::to_string( total.findings[2] ) + '\n' );
        for ( const auto &[name, counts] : codes.rows( findingsOf ) )
        {
            int64_t severity = counts.findings[0] ? 0 : counts.findings[1] ? 1 : 2;
            line( counts.all(), name + " (" + severityName( severity ) + ", in "
                                    + std::to_string( counts.messages )
                                    + ( counts.messages == 1 ? " message)" : " messages)" ) );
        }
        print( "errors, warnings, remarks, messages by User-Agent or Server:\n" );
        for ( const auto &[name, counts] : agents.rows( findingsOf ) )
        {
            char numbers[96];
            std::snprintf(
                numbers, sizeof numbers, "%12lld%10lld%10lld%10lld  ",
                static_cast<long long>( counts.findings[0] ), static_cast<long long>( counts.findings[1] ),
                static_cast<long long>( counts.findings[2] ), static_cast<long long>( counts.messages ) );
            print( numbers + printable( name ) + '\n' );
        }
    }

    static void addCounts( Json &json, const Counts &counts )
    {
        json.name( "messages" ).number( counts.messages );
        json.name( "errors" ).number( counts.findings[0] );
        json.name( "warnings" ).number( counts.findings[1] );
        json.name( "remarks" ).number( counts.findings[2] );
    }

    static void addRows( Json &json, const char *key, const char *nameKey,
                         const std::vector<Tally::Row> &rows, bool withFindings )
    {
        json.name( key ).begin( '[' );
        for ( const auto &[name, counts] : rows )
        {
            json.begin( '{' ).name( nameKey ).text( name );
            if ( withFindings )
                addCounts( json, counts );
            else
                json.name( "messages" ).number( counts.messages );
            json.end( '}' );
        }
        json.end( ']' );
    }

    void printJson() const
    {
        Json json;
        json.begin( '{' );
        addCounts( json, total );
        json.name( "unreadable" ).number( unreadable );
        addRows( json, "requests", "method", methods.rows( messagesOf ), false );
        addRows( json, "responses", "status", statuses.rows( messagesOf ), false );
        addRows( json, "codes", "code", codes.rows( findingsOf ), true );
        addRows( json, "agents", "agent", agents.rows( findingsOf ), true );
        print( json.end( '}' ).take() + '\n' );
    }

    Options options;
    Counts total;
    int64_t unreadable = 0;
    Tally methods, statuses, codes, agents;
};

} // namespace

std::unique_ptr<Report> makeSummary( const Options &options ) { return std::make_unique<Summary>( options ); }

} // namespace tools
