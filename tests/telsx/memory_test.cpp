// How much memory messages and their headers hold, and the end of a process that runs out of it.
#include <sys/wait.h>

#include "../../bench/heap.hpp"
#include "../../fuzz/headers.hpp"
#include "telsx/telsx_support.hpp"

using namespace support;

static std::string wireWith( std::size_t bodyLength )
{
    return "INVITE sip:bob@xn--mhle-0ra.example SIP/2.0\r\n"
           "Via: SIP/2.0/UDP pc33.example.com;branch=z9hG4bK776asdhds;received=192.0.2.1\r\n"
           "Route: <sip:first.example.com;lr>, <sip:second.example.com;lr>, \"Third\" "
           "<sip:third.example.com;lr>\r\n"
           "From: \"Alice \\\"Al\\\"\" <sip:alice@example.com>;tag=1928301774;x-room=\"blue\"\r\n"
           "To: <sip:bob@xn--mhle-0ra.example>\r\n"
           "Call-ID: a84b4c76e66710@pc33.example.com\r\n"
           "CSeq: 314159 INVITE\r\n"
           "Allow: INVITE, ACK, BYE\r\n"
           "Subject: folded\r\n in two\r\n"
           "X-Other: x\r\n\r\n"
           + std::string( bodyLength, 'x' );
}

static headers::Message decoded( std::string_view wire )
{
    return adopt( telsxMessageTryDecode( buffer( wire ).get() ) );
}

TEST( Memory, WhatIsKeptHoldsLittleMoreThanItsText )
{
    if ( !heap::isMeasured )
        GTEST_SKIP() << "a sanitizer has the heap";
    std::string small = wireWith( 0 ), large = wireWith( 100'000 );
    EXPECT_LE( heap::heldBy( [&] { return decoded( small ); } ), 12 * std::ssize( small ) );
    EXPECT_LE( heap::heldBy( [&] { return decoded( large ); } ), 100'000 + 12 * std::ssize( small ) );
    for ( const headers::Kind &kind : headers::all )
    {
        auto keepHeader = [&] { return adopt( kind.tryDecodeFromMessage( decoded( large ).get() ) ); };
        auto keepText = [&]
        {
            Ref<RT_OBJ> hdr = keepHeader();
            return hdr ? adopt( rtObjToString( hdr.get() ) ) : Ref<RT_STRING>();
        };
        int64_t length = keepText() ? rtStringLength( keepText().get() ) : 0;
        EXPECT_LE( heap::heldBy( keepHeader ), 10 * length + 500 ) << kind.name;
        EXPECT_LE( heap::heldBy( keepText ), 8 * length + 100 ) << kind.name;
    }
    auto keepPart = [&]
    {
        auto routes = adopt( telsxHeaderRouteTryDecodeFromMessage( decoded( large ).get() ) );
        return adopt( telsxRouteIri( adopt( telsxHeaderRouteTryDecodeRouteAt( routes.get(), 0 ) ).get() ) );
    };
    EXPECT_LE( heap::heldBy( keepPart ), 16 * rtStringLength( keepPart().get() ) + 200 );
}

TEST( Memory, OfWhatIsDeletedIsUsedAgain )
{
    if ( !heap::isMeasured )
        GTEST_SKIP() << "a sanitizer has the heap";
    auto keepDict = []
    {
        Ref<RT_DICT> dict = adopt( rtDictCreate() );
        for ( int i = 0; i < 10'000; ++i )
        {
            Ref<RT_STRING> key = str( std::to_string( i % 5000 ) );
            if ( i < 5000 )
                rtDictSetStringKey( dict.address(), key.get(), rtStringObj( key.get() ) );
            else
                rtDictDelStringKey( dict.address(), key.get() );
        }
        return dict;
    };
    EXPECT_LE( heap::heldBy( keepDict ), 2000 );
    heap::allocationsLeft = 100'000;
    for ( int i = 0; i < 10'000; ++i )
        adopt( rtBufferCreateFromBytesCopy( "a", 1 ) );
    EXPECT_GE( heap::allocationsLeft.exchange( INT64_MAX ), 99'900 );
}

// The message after a trip through everything that allocates.
static Ref<RT_BUFFER> travel( std::string_view wire )
{
    headers::Message message = decoded( wire );
    for ( const headers::Kind &kind : headers::all )
        if ( auto hdr = adopt( kind.tryDecodeFromMessage( message.get() ) ) )
            kind.encodeToMessage( adopt( kind.tryRestore( adopt( kind.store( hdr.get() ) ).get() ) ).get(),
                                  message.address() );
    return adopt( telsxMessageEncode( message.get() ) );
}

// In a thread of its own, which has no blocks left over.
static void travelWith( int64_t allocations, std::string_view wire, const Ref<RT_BUFFER> &expected )
{
    auto inThread = [&]
    {
        heap::allocationsLeft = allocations;
        bool isWhole = travel( wire ) == expected;
        heap::allocationsLeft = INT64_MAX;
        std::fputs( isWhole ? "arrived\n" : "damaged\n", stderr );
        std::_Exit( 0 );
    };
    std::thread( inThread ).join();
}

// Each allocation on the trip is once the first to fail. One is glibc's own, which remembers what to do at the end of a
// thread.
TEST( Memory, WhoRunsOutOfItAborts )
{
    if ( !heap::isMeasured )
        GTEST_SKIP() << "a sanitizer has the heap";
    std::string wire = wireWith( 10 );
    Ref<RT_BUFFER> expected = travel( wire );
    static bool hasArrived;
    hasArrived = false;
    int64_t allocations = 0;
    for ( ; !hasArrived && !HasFailure(); ++allocations )
        EXPECT_EXIT(
            travelWith( allocations, wire, expected ),
            []( int status )
            {
                hasArrived = WIFEXITED( status );
                return hasArrived || ( WIFSIGNALED( status ) && WTERMSIG( status ) == SIGABRT );
            },
            testing::ContainsRegex( "^arrived|^source/[a-z_/]*:[0-9]*: out of memory: |"
                                    "^Fatal glibc error: .*: out of memory" ) )
            << "allocation " << allocations;
    EXPECT_GT( allocations, 100 );
}
