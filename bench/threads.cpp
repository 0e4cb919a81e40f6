// How decoding scales over threads that share nothing but the library: messages per second, for one thread and for two.
// What threads wait for each other costs processor time too, which other programs on the machine don't change, so that
// is printed as well.
// usage: threads [ROUNDS]
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string_view>
#include <thread>
#include <vector>

#include "rt/rt_frame.hpp"
#include "telsx/telsx.h"

using rt::adopt;

namespace
{

constexpr std::string_view invite = "INVITE sip:bob@example.com SIP/2.0\r\n"
                                    "Via: SIP/2.0/UDP pc33.example.com;branch=z9hG4bK776asdhds;rport\r\n"
                                    "Max-Forwards: 70\r\n"
                                    "From: \"Alice\" <sip:alice@example.com>;tag=1928301774\r\n"
                                    "To: Bob <sip:bob@example.com>\r\n"
                                    "Call-ID: a84b4c76e66710@pc33.example.com\r\n"
                                    "CSeq: 314159 INVITE\r\n"
                                    "Contact: <sip:alice@pc33.example.com;transport=tcp>\r\n"
                                    "Supported: 100rel, timer\r\n"
                                    "Content-Type: application/sdp\r\n"
                                    "Content-Length: 4\r\n\r\nv=0\n";

auto decoded()
{
    auto wire = adopt( rtBufferCreateFromBytesCopy( invite.data(), static_cast<int64_t>( invite.size() ) ) );
    return adopt( telsxMessageTryDecode( wire.get() ) );
}
bool decodes() { return bool( decoded() ); }

// Like a proxy: reads the headers that it needs, and sends the message on.
bool forwards()
{
    auto message = decoded();
    return adopt( telsxHeaderViaTryDecodeFromMessage( message.get() ) )
           && adopt( telsxHeaderFromTryDecodeFromMessage( message.get() ) )
           && adopt( telsxHeaderToTryDecodeFromMessage( message.get() ) )
           && adopt( telsxHeaderCseqTryDecodeFromMessage( message.get() ) )
           && adopt( telsxHeaderContactTryDecodeFromMessage( message.get() ) )
           && adopt( telsxMessageEncode( message.get() ) );
}

struct Result
{
    double messagesPerSecond, nanosecondsEach; // by the clock, and of processor time
};

double secondsOf( clockid_t clock )
{
    timespec time;
    clock_gettime( clock, &time );
    return static_cast<double>( time.tv_sec ) + static_cast<double>( time.tv_nsec ) / 1e9;
}

// As many messages as the threads process in half a second.
Result measured( bool ( *handle )(), int threads )
{
    std::atomic<bool> isOver = false;
    std::atomic<int64_t> messages = 0;
    double wall = secondsOf( CLOCK_MONOTONIC ), processor = secondsOf( CLOCK_PROCESS_CPUTIME_ID );
    std::vector<std::thread> running;
    for ( int i = 0; i < threads; ++i )
        running.emplace_back(
            [&]
            {
                int64_t count = 0;
                for ( ; !isOver.load( std::memory_order_relaxed ); ++count )
                    if ( !handle() )
                        std::abort();
                messages += count;
            } );
    std::this_thread::sleep_for( std::chrono::milliseconds( 500 ) );
    isOver = true;
    for ( std::thread &thread : running )
        thread.join();
    auto count = static_cast<double>( messages.load() );
    return { count / ( secondsOf( CLOCK_MONOTONIC ) - wall ),
             ( secondsOf( CLOCK_PROCESS_CPUTIME_ID ) - processor ) / count * 1e9 };
}

double median( std::vector<double> values )
{
    std::sort( values.begin(), values.end() );
    return values[values.size() / 2];
}

} // namespace

int main( int argc, char **argv )
{
    int rounds = argc > 1 ? std::atoi( argv[1] ) : 9;
    if ( rounds < 1 || !rtModuleStart( telsxModule() ) )
        return 1;
    std::printf( "%-20s %18s %18s %9s %15s %15s\n", "medians", "1 thread, /s", "2 threads, /s", "ratio",
                 "1 thread, ns", "2 threads, ns" );
    const struct
    {
        const char *name;
        bool ( *handle )();
    } jobs[] = { { "decode", decodes }, { "decode and forward", forwards } };
    for ( auto [name, handle] : jobs )
    {
        std::vector<double> rates[2], costs[2], ratios;
        for ( int round = 0; round < rounds; ++round )
        {
            for ( int i : { 0, 1 } )
            {
                Result result = measured( handle, i + 1 );
                rates[i].push_back( result.messagesPerSecond );
                costs[i].push_back( result.nanosecondsEach );
            }
            ratios.push_back( rates[1].back() / rates[0].back() );
        }
        std::printf( "%-20s %18.0f %18.0f %9.2f %15.0f %15.0f\n", name, median( rates[0] ),
                     median( rates[1] ), median( ratios ), median( costs[0] ), median( costs[1] ) );
    }
    rtModuleStop( telsxModule() );
}
