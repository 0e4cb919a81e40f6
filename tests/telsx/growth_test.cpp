// Hostile text costs a skipper time in proportion to its length. A skipper has nothing to work on but its
// text, so the steps that are counted are those from one part of the text to another: where the rest of a
// line is looked through for each of its values, or for each parenthesis, they grow with the square. Nothing
// is measured in seconds.
#include <csignal>
#include <sys/mman.h>

#include "../../fuzz/elements.hpp"
#include "telsx/telsx_support.hpp"

using namespace support;

// A text of which only two parts are open to be read at a time: a read in any other part is a step, which
// opens that part and closes the one that has been open for longer.
class WatchedText
{
public:
    explicit WatchedText( const std::string &ascii ) : length( std::ssize( ascii ) )
    {
        size = ( ascii.size() * sizeof( RT_CHAR ) / part + 2 ) * part;
        begin = static_cast<char *>(
            mmap( nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0 ) );
        std::copy( ascii.begin(), ascii.end(), reinterpret_cast<RT_CHAR *>( begin ) );
        mprotect( begin, size, PROT_NONE );
        struct sigaction action = {};
        action.sa_sigaction = step;
        action.sa_flags = SA_SIGINFO;
        sigaction( SIGSEGV, &action, &outside );
    }
    ~WatchedText()
    {
        sigaction( SIGSEGV, &outside, nullptr );
        munmap( begin, size );
    }
    WatchedText( const WatchedText & ) = delete;

    // How many steps it takes to cut the text into values with commas between them.
    int64_t stepsToCut( rt::Skipper skip ) const
    {
        mprotect( begin, size, PROT_NONE );
        steps = 0;
        rt::Text rest = { reinterpret_cast<RT_CHAR *>( begin ), length };
        while ( rest.take( skip ) && rest.take( telsx___SkipComma ) )
            ;
        return steps;
    }

private:
    static constexpr std::size_t part = 0x4000;

    static void step( int, siginfo_t *info, void * )
    {
        auto at = static_cast<char *>( info->si_addr );
        if ( at < begin || at >= begin + size )
            sigaction( SIGSEGV, &outside, nullptr );
        else
        {
            char *opened = begin + static_cast<std::size_t>( at - begin ) / part * part;
            if ( steps >= 2 )
                mprotect( open[steps % 2], part, PROT_NONE );
            mprotect( opened, part, PROT_READ );
            open[steps++ % 2] = opened;
        }
    }

    static inline char *begin, *open[2];
    static inline std::size_t size;
    static inline int64_t steps;
    static inline struct sigaction outside;
    int64_t length;
};

// What stands in front, a bar, what is repeated, and a bar and what stands behind.
static constexpr auto hostile = list(
    // What never ends
    "\"|aaaaaaaaaa", "\"|\\\"", "(|aaaaa", "|(", "|( \\)", "<sip:|aaaaa", "a;a=\"|aaaaa", "SIP/2.0/UDP |a-",
    "a;a=[::|0", "SIP/2.0/UDP h;received=::|0", "SIP/2.0/UDP h;received=|1.", "a@|a-", "\"a\"| |sip:a",
    "<a>|;a=\"",
    // What is long
    "|aaaaaaaaaa", "| ", "|a ", "|a.", "|1.", "|a-", "a| |/a", "a;a| |=a", "|()", "(|() |)", "a |(a) ",
    "|\t(", "<|%41|>",
    // Many parameters
    "<sip:a>|;a", "sip:a| ; a = \"b\"", "a|;a=[::1]", "a/b|;a=b", "SIP/2.0/UDP h|;received=::1",
    "SIP/2.0/UDP h:1|;received=1",
    // Many values
    "|sip:a@b,", "|sip:a@b ,", "|sip:a@b;c,", "|a b <sip:c>, ", "|\"a\" <sip:a@b>;c=\"d\",", "|a;b,",
    "|a/b;c=d,", "|SIP/2.0/UDP h:1;received=::1;a=b,", "|399 h \"a\",", "|[::1]:1," );

static std::string textOf( std::string_view row, int count )
{
    std::size_t first = row.find( '|' ), last = row.find( '|', first + 1 );
    std::string text( row.substr( 0, first ) );
    for ( int i = 0; i < count; ++i )
        text += row.substr( first + 1, last - first - 1 );
    return last == row.npos ? text : text += row.substr( last + 1 );
}

// All that consist of other elements, each algorithm once.
static constexpr std::string_view composites[] = {
    "QuotedString",     "Comment",        "CallId",   "SipCleanMsgId", "SipInstance", "Subject",
    "HistoryInfoIndex", "TimestampValue", "HostPort", "DisplayName",   "Contact",     "Route",
    "IdentityValue",    "AlertInfo",      "Reason",   "Accept",        "Via",         "WarningValue",
    "Server",
};

TEST( Growth, SkippersWalkATextABoundedNumberOfTimes )
{
    for ( std::string_view row : hostile )
    {
        int64_t fewer[std::size( composites )] = {};
        for ( int count : { 6'250, 25'000, 100'000 } )
        {
            WatchedText text( textOf( row, count ) );
            for ( std::size_t i = 0; i < std::size( composites ); ++i )
            {
                int64_t steps = text.stepsToCut( elements::named( composites[i] ).skip );
                // A text of two parts is open whole, however often it is walked; hence the 50.
                ASSERT_TRUE( count == 6'250 || steps <= 5 * fewer[i] + 50 )
                    << composites[i] << ", " << row << ", " << count << " times: " << steps << " steps, and "
                    << fewer[i] << " for a quarter of it";
                fewer[i] = steps;
            }
        }
    }
}
