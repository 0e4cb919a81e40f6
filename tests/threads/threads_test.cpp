// Threads that share objects without a lock: each reads them, and changes its own copies.
#include <thread>

#include "telsx/object_tables.hpp"
#include "telsx/samples.hpp"

using namespace support;

// Calls the test in each of eight threads with the thread's number.
template <class TEST>
static void inThreads( TEST test )
{
    std::vector<std::thread> threads;
    for ( int i = 0; i < 8; ++i )
        threads.emplace_back( [&test, i] { test( i ); } );
    for ( std::thread &thread : threads )
        thread.join();
}

TEST( Threads, ShareHeadersOfAllKinds )
{
    struct Shared
    {
        const headers::Kind &kind;
        headers::Raw raw;
        Ref<RT_OBJ> hdr;
    };
    std::vector<Shared> all;
    for ( const headers::Kind &kind : headers::all )
        all.push_back( { kind, rawHeader( kind.name, sampleLine( kind.name ) ),
                         read( kind, sampleLine( kind.name ) ) } );
    ASSERT_TRUE( std::ranges::all_of( all, []( auto &shared ) { return bool( shared.hdr ); } ) );
    inThreads(
        [&all]( int )
        {
            for ( int round = 0; round < 10; ++round )
                for ( const auto &[kind, raw, hdr] : all )
                {
                    EXPECT_EQ( nullptr, headers::broken( kind, raw ) ) << kind.name;
                    EXPECT_EQ( nullptr, headers::brokenReading( kind, raw, hdr ) ) << kind.name;
                    EXPECT_TRUE( headers::areSame( kind, hdr, adopt( kind.copy( hdr.get() ) ) ) );
                }
        } );
}

// Each thread puts its own text into copies of the object.
template <class HANDLE, class TEXT, class CHANGE>
static void shareObject( const Ref<HANDLE> &shared, TEXT textOf, CHANGE change )
{
    const std::string text = textOf( shared.get() );
    SCOPED_TRACE( text );
    inThreads(
        [&]( int thread )
        {
            Ref<RT_STRING> own = str( "own" + std::to_string( thread ) );
            for ( int round = 0; round < 200; ++round )
            {
                Ref<HANDLE> copy = shared;
                change( copy.address(), own.get() );
                EXPECT_THAT( textOf( copy.get() ), testing::HasSubstr( utf8( own ) ) );
                EXPECT_EQ( text, textOf( shared.get() ) );
                EXPECT_NE( shared, copy );
            }
        } );
    EXPECT_EQ( 1, rt::asObj( shared.get() )->count );
}

TEST( Threads, ChangeCopiesOfWhatTheyShare )
{
    auto textOf = []( auto object ) { return utf8( rtObjToString( rt::asObj( object ) ) ); };
    // A dictionary from which something was deleted records the position of a reader.
    auto params = adopt( applied( telsx___GenericParamsTryDecode, ";a;b=c;d" ) );
    telsxGenericParamsDelParamCstr( params.address(), "a", -1 );
    shareObject( params, textOf,
                 []( auto *set, RT_STRING own )
                 {
                     telsxGenericParamsSetParamValueCstr( set, "d", -1, TELSX_GENERIC_PARAM_VALUE_TYPE_TOKEN,
                                                          own );
                     telsxGenericParamsDelParamCstr( set, "b", -1 );
                 } );
    shareObject( sample<TELSX_VIA>(), textOf,
                 []( auto *via, RT_STRING own )
                 {
                     telsxViaDelRport( via );
                     telsxViaSetBranch( via, own );
                 } );
    shareObject( sample<TELSX_HEADER_VIA>(), textOf,
                 []( auto *hdr, RT_STRING own )
                 {
                     auto via = adopt( telsxHeaderViaTryDecodeViaAt( *hdr, 0 ) );
                     telsxViaSetBranch( via.address(), own );
                     telsxHeaderViaAppendVia( hdr, via.get() );
                     telsxHeaderViaDelViaAt( hdr, 0 );
                 } );
    shareObject( sample<TELSX_HEADER_SUPPORTED>(), textOf,
                 []( auto *hdr, RT_STRING own )
                 {
                     telsxHeaderSupportedSetOptionTag( hdr, own );
                     telsxHeaderSupportedDelOptionTagCstr( hdr, "a", -1 );
                 } );
    shareObject( sample<TELSX_HEADER_CONTENT_ENCODING>(), textOf,
                 telsxHeaderContentEncodingAppendContentCoding );
}

TEST( Threads, ChangeCopiesOfAMessage )
{
    Ref<TELSX_MESSAGE> shared = message( "A b:c SIP/2.0\r\nv: a\r\nt: c\r\nf: d\r\nVia: b\r\n\r\n" );
    telsxMessageSetHeader( shared.address(), header( "x", { "y" } ).get() );
    telsxMessageDelHeaderCstr( shared.address(), "x", -1 );
    auto textOf = []( TELSX_MESSAGE msg )
    { return dump( msg ) + bytes( adopt( telsxMessageEncode( msg ) ) ); };
    shareObject( shared, textOf,
                 []( TELSX_MESSAGE *msg, RT_STRING own )
                 {
                     Ref<TELSX_MESSAGE_HEADER> via = adopt( telsxMessageHeaderCstr( *msg, "v", -1 ) );
                     telsxMessageHeaderAppendLine( via.address(), own );
                     telsxMessageSetHeader( msg, via.get() );
                     telsxMessageDelHeaderCstr( msg, "To", -1 );
                     telsxMessageSetBody( msg, buffer( "body" ).get() );
                     Ref<TELSX_VERSION> version = adopt( telsxMessageVersion( *msg ) );
                     telsxVersionSetProtocolVersion( version.address(), own );
                     telsxMessageSetVersion( msg, version.get() );
                     std::string text = utf8( share( own ) );
                     EXPECT_EQ( "A b:c SIP/" + text + " | Via: <a> <b> <" + text
                                    + "> | From: <d> | body <body>",
                                dump( *msg ) );
                 } );
    // None of them changed the version that they all share.
    EXPECT_EQ( "SIP/2.0", utf8( telsxVersionToString( adopt( telsxVersionCreateSip20() ).get() ) ) );
}
