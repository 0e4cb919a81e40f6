// Threads that share a message without a lock: each reads it, and changes copies of its own.
#include <thread>

#include "telsx_support.hpp"

using namespace support;

static void useMessage( Ref<TELSX_MESSAGE> shared, const std::string &expected, int thread )
{
    for ( int round = 0; round < 200; ++round )
    {
        EXPECT_EQ( expected, dump( shared.get() ) );
        std::string before = bytes( adopt( telsxMessageEncode( shared.get() ) ) );

        Ref<TELSX_MESSAGE> copy = shared;
        Ref<TELSX_MESSAGE_HEADER> via = adopt( telsxMessageHeaderCstr( copy.get(), "v", -1 ) );
        telsxMessageHeaderAppendLineFormatCstr( via.address(), "%i", -1, int64_t( thread ) );
        telsxMessageSetHeader( copy.address(), via.get() );
        telsxMessageDelHeaderCstr( copy.address(), "To", -1 );
        telsxMessageSetBody( copy.address(), buffer( "body" ).get() );
        Ref<TELSX_VERSION> version = adopt( telsxMessageVersion( copy.get() ) );
        telsxVersionSetProtocolVersion( version.address(), str( std::to_string( thread ) ).get() );
        telsxMessageSetVersion( copy.address(), version.get() );

        std::string number = std::to_string( thread );
        EXPECT_EQ( "A b:c SIP/" + number + " | Via: <a> <b> <" + number + "> | From: <d> | body <body>",
                   dump( copy.get() ) );
        EXPECT_EQ( before, bytes( adopt( telsxMessageEncode( shared.get() ) ) ) );
    }
}

TEST( Threads, ShareAMessage )
{
    Ref<TELSX_MESSAGE> shared = message( "A b:c SIP/2.0\r\nv: a\r\nt: c\r\nf: d\r\nVia: b\r\n\r\n" );
    // A dictionary out of which something was deleted keeps account of where a reader is.
    telsxMessageSetHeader( shared.address(), header( "x", { "y" } ).get() );
    telsxMessageDelHeaderCstr( shared.address(), "x", -1 );
    std::string expected = dump( shared.get() );
    std::vector<std::thread> threads;
    for ( int i = 0; i < 4; ++i )
        threads.emplace_back( [&shared, &expected, i] { useMessage( shared, expected, i ); } );
    for ( std::thread &thread : threads )
        thread.join();
    EXPECT_EQ( expected, dump( shared.get() ) );
    EXPECT_EQ( 1, rt::asObj( shared.get() )->count );
    // None of them changed the version that all share.
    EXPECT_EQ( "SIP/2.0", utf8( telsxVersionToString( adopt( telsxVersionCreateSip20() ).get() ) ) );
}
