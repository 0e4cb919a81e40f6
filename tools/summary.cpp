// Counts of messages and findings. Several threads check messages, since a large capture has many of them.
#include <algorithm>
#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <thread>

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
    void operator+=( const Counts &more )
    {
        messages += more.messages;
        for ( std::size_t i = 0; i < std::size( findings ); ++i )
            findings[i] += more.findings[i];
    }
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

    void operator+=( const Tally &more )
    {
        for ( const auto &[name, counted] : more.counts )
            ( *this )[name] += counted;
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

// What one thread has counted.
struct Counted
{
    Counts total;
    int64_t unreadable = 0;
    bool areBad = false;
    Tally methods, statuses, codes, agents;

    void add( const Cut &message, const std::set<std::string> &silenced, const Owned<TELSX_FINDER> &finder )
    {
        // A message stays unreadable if its error is silenced.
        std::vector<Finding> findings = findIn( message, {}, finder );
        bool isUnreadable = !findings.empty() && findings.front().severity == TELSX_FINDING_SEVERITY_ERROR;
        std::erase_if( findings,
                       [&]( const Finding &finding ) { return silenced.count( finding.code ) > 0; } );
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
        areBad = areBad || tools::areBad( findings );
    }

    void operator+=( const Counted &more )
    {
        total += more.total;
        unreadable += more.unreadable;
        areBad = areBad || more.areBad;
        methods += more.methods;
        statuses += more.statuses;
        codes += more.codes;
        agents += more.agents;
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
};

// Messages on their way to a thread, one after another.
struct Batch
{
    static constexpr std::size_t enough = 1 << 18; // bytes

    struct Part
    {
        std::size_t length;
        bool lacksLength;
    };
    Batch() { bytes.reserve( enough + enough / 4 ); }

    std::string bytes;
    std::vector<Part> parts;
};

// Threads that count the messages of batches. Few batches wait for them, so that memory stays bounded.
class Counters
{
public:
    explicit Counters( const std::set<std::string> &silencedCodes ) : silenced( silencedCodes )
    {
        constexpr unsigned mostThreads = 16;
        counted.resize( std::clamp( std::thread::hardware_concurrency(), 1U, mostThreads ) );
        for ( Counted &own : counted )
            threads.emplace_back( [this, &own] { run( own ); } );
    }

    void add( Batch batch )
    {
        std::unique_lock lock( mutex );
        changed.wait( lock, [this] { return waiting.size() <= threads.size(); } );
        waiting.push_back( std::move( batch ) );
        changed.notify_all();
    }

    // Once there are no more batches.
    Counted sum()
    {
        {
            std::lock_guard lock( mutex );
            isEnd = true;
        }
        changed.notify_all();
        for ( std::thread &thread : threads )
            thread.join();
        Counted result;
        for ( const Counted &each : counted )
            result += each;
        return result;
    }

private:
    void run( Counted &own )
    {
        Owned finder( telsxFinderCreate() );
        for ( ;; )
        {
            std::unique_lock lock( mutex );
            changed.wait( lock, [this] { return isEnd || !waiting.empty(); } );
            if ( waiting.empty() )
                return;
            Batch batch = std::move( waiting.front() );
            waiting.pop_front();
            lock.unlock();
            changed.notify_all();
            std::string_view rest = batch.bytes;
            for ( auto [length, lacksLength] : batch.parts )
            {
                own.add( { rest.substr( 0, length ), lacksLength }, silenced, finder );
                rest.remove_prefix( length );
            }
        }
    }

    const std::set<std::string> &silenced;
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Batch> waiting;
    bool isEnd = false;
    std::vector<Counted> counted;
    std::vector<std::thread> threads;
};

class Summary : public Report
{
public:
    explicit Summary( const Options &chosen ) : options( chosen ), counters( options.silenced ) {}

    bool add( const Cut &message, const Place & ) override
    {
        batch.bytes += message.bytes;
        batch.parts.push_back( { message.bytes.size(), message.lacksLength } );
        if ( batch.bytes.size() >= Batch::enough )
            counters.add( std::exchange( batch, {} ) );
        return false;
    }

    bool finish() override
    {
        counters.add( std::exchange( batch, {} ) );
        sum = counters.sum();
        if ( options.json )
            printJson();
        else
            printText();
        return sum.areBad;
    }

private:
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
        print( "messages: " + std::to_string( sum.total.messages ) + '\n' );
        for ( const auto &[name, counts] : sum.methods.rows( messagesOf ) )
            line( counts.messages, name );
        for ( const auto &[name, counts] : sum.statuses.rows( messagesOf ) )
            line( counts.messages, name );
        if ( sum.unreadable )
            line( sum.unreadable, "unreadable" );
        print( "errors: " + std::to_string( sum.total.findings[0] )
               + ", warnings: " + std::to_string( sum.total.findings[1] )
               + ", remarks: " + std::to_string( sum.total.findings[2] ) + '\n' );
        for ( const auto &[name, counts] : sum.codes.rows( findingsOf ) )
        {
            int64_t severity = counts.findings[0] ? 0 : counts.findings[1] ? 1 : 2;
            line( counts.all(), name + " (" + severityName( severity ) + ", in "
                                    + std::to_string( counts.messages )
                                    + ( counts.messages == 1 ? " message)" : " messages)" ) );
        }
        print( "errors, warnings, remarks, messages by User-Agent or Server:\n" );
        for ( const auto &[name, counts] : sum.agents.rows( findingsOf ) )
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
        addCounts( json, sum.total );
        json.name( "unreadable" ).number( sum.unreadable );
        addRows( json, "requests", "method", sum.methods.rows( messagesOf ), false );
        addRows( json, "responses", "status", sum.statuses.rows( messagesOf ), false );
        addRows( json, "codes", "code", sum.codes.rows( findingsOf ), true );
        addRows( json, "agents", "agent", sum.agents.rows( findingsOf ), true );
        print( json.end( '}' ).take() + '\n' );
    }

    Options options;
    Counters counters;
    Batch batch;
    Counted sum;
};

} // namespace

std::unique_ptr<Report> makeSummary( const Options &options ) { return std::make_unique<Summary>( options ); }

} // namespace tools
