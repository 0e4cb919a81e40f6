// The typed headers: what they read from raw headers, messages and stores, and what they write to them.
#include "telsx/object_tables.hpp"
#include "telsx/samples.hpp"

using namespace support;

// clang-format off
static const Texts texts[] = {
    { "Call-Id", "",
      { "f81d4fae-7dec@10.0.0.1", "A%?\"<[{" },
      { { " bad\nA", "A" } },
      { nullptr, "", "a\n", "a ", " a", "a@", "a@b@c", "a, b", "é" } },
    { "Cseq", "",
      { "314159 INVITE", "2147483647 A.b!" },
      { { "1 INVITE\n2 ACK", "2 ACK" }, { "garbage\n2 ACK", "2 ACK" }, { "000 \t invite", "0 invite" } },
      { nullptr, "", "2 ACK\ngarbage", "2147483648 INVITE", "99999999999999999999 INVITE", "1INVITE", "1 INVITE ",
        " 1 INVITE", "1 INVITE ACK", "1 ", "1", "INVITE", "+1 INVITE", "-1 INVITE", "1 INVÏTE" } },
    { "From To", "",
      { "<sip:host>", "<sip:host;tag=1>" },
      { { "sip:host", "<sip:host>" },
        { "<sip:bad\nsip:host", "<sip:host>" },
        { "sip:host;tag=1", "<sip:host>;tag=1" },
        { "Alice <sip:host>", "\"Alice\" <sip:host>" },
        { "\"\" <sip:host> ", "\"\" <sip:host>" },
        { "<sip:ü@a>;tag=1", "<sip:%C3%BC@a>;tag=1" } },
      { nullptr, "", "sip:a\n", "sip:host ", "Alice sip:host", "<sip:a", "*" } },
    { "From To", "<sip:a>",
      { ";x;tag;epid=\"x\";tagline=1", ";x;tag=\"x\"", ";epid=1234567890123456" },
      { { "  ;  tag=1", ";tag=1" },
        { ";X=Y;EPID=E;TAG=T", ";tag=T;epid=E;x=Y" },
        { ";tag=1;tag=2;epid=1;epid=2;x=1;X=2", ";tag=2;epid=2;x=2" },
        { ";tag=1;tag=\"x\";epid;epid=2", ";tag=1;epid=2" } },
      { ";tag=1;", ";tag=", ";tag=a=b", ";tag=1 x", ", <sip:b>", ";epid=12345678901234567" } },

    // Lists: an empty line is an empty list, which is written without lines.
    { "Accept Accept-Encoding Alert-Info Allow Allow-Events Call-Info Contact Content-Encoding Diversion Error-Info "
      "History-Info In-Reply-To P-Asserted-Identity P-Preferred-Identity Privacy Proxy-Require Reason Record-Route "
      "Require Route Service-Route Supported Unsupported",
      "", {}, { { "", "" }, { "\n", "" } }, { nullptr, " ", ",", ";" } },
    { "Via Warning", "", {}, { { nullptr, "" }, { "", "" } }, { " ", "," } },
    { "Alert-Info Call-Info Contact Diversion Error-Info History-Info P-Asserted-Identity P-Preferred-Identity "
      "Record-Route Route Service-Route",
      "<sip:a>",
      { "" },
      { { " ,\t<sip:b>\n\n<sip:%63>", " \n<sip:b>\n<sip:%63>" } },
      { ",", ",,<sip:b>", "\n,<sip:b>", "\nx y", " x" } },
    { "Alert-Info Call-Info Contact Diversion Error-Info History-Info Record-Route Route Service-Route", "<sip:a>;",
      { "X = 1" }, { { "y=\"a,b\", <sip:b>", "y=\"a,b\"\n<sip:b>" } }, { "", "x;" } },
    { "P-Asserted-Identity P-Preferred-Identity", "", { "sip:a" }, {}, { "<sip:a>;x" } },
    { "Record-Route Route Service-Route Alert-Info", "", {}, {}, { "sip:a" } },
    { "Contact", "",
      { "*", "sip:a;Q=1" },
      { { " *\t", "*" }, { "*\n\n", "*" } },
      { "*, <sip:a>", "*\n<sip:a>", "<sip:a>\n*", "\n*", "*\n*" } },
    { "Accept", "", {}, { { "APPLICATION/SDP, */*;q=1", "APPLICATION/SDP\n*/*;q=1" } }, { "a/b, */plain" } },
    { "Accept-Encoding", "", {}, { { "GZIP;q=0.5 , *", "GZIP;q=0.5\n*" } }, { "a b" } },
    { "Reason", "", {}, { { "Q.850;text=\"a,b\" , SIP", "Q.850;text=\"a,b\"\nSIP" } }, { "SIP x" } },
    { "Via", "SIP/2.0/UDP ",
      { "a;ttl=12abc" },
      { { "a;x, SIP/2.0/TCP b\nSIP / 2.0/TLS c:1", "a;x\nSIP/2.0/TCP b\nSIP / 2.0/TLS c:1" } },
      { "a ", "a,", "a\nb" } },
    { "Warning", "", {}, { { "399 a \"b,c\", 300 d \"\"", "399 a \"b,c\"\n300 d \"\"" } }, { "39 a \"b\"" } },

#include "telsx/rows_kinds.def"
#include "telsx/rows_list_headers.def"
};
// clang-format on

TEST( Headers, AreReadAndWritten ) { expectTexts( headers::all, texts ); }

TEST( Headers, AbortForNullAndForOtherNames )
{
    for ( const headers::Kind &kind : headers::all )
    {
        SCOPED_TRACE( kind.name );
        EXPECT_ABORT( kind.tryDecode( rawHeader( "Other", OptionalText( "1" ) ).get() ),
                      "telsxMessageHeaderNameEqualsCstr( header, \"" + std::string( kind.name )
                          + "\", -1 )" );
        EXPECT_ABORT( kind.encode( nullptr ), "hdr" );
        EXPECT_ABORT( kind.store( nullptr ), "hdr" );
        EXPECT_ABORT( kind.tryRestore( nullptr ), "store" );
        EXPECT_ABORT( kind.presentInMessage( nullptr ), "msg" );
        EXPECT_ABORT( kind.tryDecodeFromMessage( nullptr ), "msg" );
        TELSX_MESSAGE none = nullptr;
        EXPECT_ABORT( kind.removeFromMessage( nullptr ), "msg" );
        EXPECT_ABORT( kind.removeFromMessage( &none ), "*msg" );
        Ref<RT_OBJ> hdr = read( kind, sampleLine( kind.name ) );
        EXPECT_ABORT( kind.encodeToMessage( nullptr, &none ), "hdr" );
        EXPECT_ABORT( kind.encodeToMessage( hdr.get(), nullptr ), "msg" );
        EXPECT_ABORT( kind.encodeToMessage( hdr.get(), &none ), "*msg" );
    }
}

TEST( Headers, RefuseDamagedStores )
{
    for ( const headers::Kind &kind : headers::all )
        for ( const char *line : { "1 A\r\nB: c", "\r\n" } )
        {
            Ref<RT_STORE> store = adopt( rtStoreCreate() );
            rtStoreSetValueCstr( store.address(), "0", -1, str( line ).get() );
            EXPECT_FALSE( adopt( kind.tryRestore( store.get() ) ) ) << kind.name;
        }
}

// Headers of a message that came over the wire, with folds, compact names and repeats.
TEST( Headers, AreReadFromTheWire )
{
    Ref<TELSX_MESSAGE> msg =
        message( "INVITE sip:b SIP/2.0\r\ni: a@b\r\nCSEQ: 1 ACK\r\nf: Alice\r\n <sip:a>\r\n"
                 " ;tag=1\r\ncseq: 2\r\n\tINVITE\r\nTo: bad\r\n\r\n" );
    ASSERT_TRUE( msg );
    auto shownOf = [&]( const char *name )
    { return shown( named( headers::all, name ).tryDecodeFromMessage( msg.get() ) ); };
    EXPECT_EQ( "a@b", shownOf( "Call-Id" ) );
    EXPECT_EQ( "2 INVITE", shownOf( "Cseq" ) );
    EXPECT_EQ( "\"Alice\" <sip:a>;tag=1", shownOf( "From" ) );
    EXPECT_EQ( "(null)", shownOf( "To" ) );
    EXPECT_TRUE( telsxHeaderToPresentInMessage( msg.get() ) );

    // What is read has no link to the message.
    auto cseq = adopt( telsxHeaderCseqTryDecodeFromMessage( msg.get() ) );
    telsxHeaderCseqSetCseq( cseq.address(), 3 );
    EXPECT_EQ( "2 INVITE", shownOf( "Cseq" ) );
    telsxHeaderCseqEncodeToMessage( cseq.get(), msg.address() );
    EXPECT_EQ( "3 INVITE", shownOf( "Cseq" ) );
}

TEST( Headers, SortByTheirFields )
{
    struct
    {
        const char *name;
        std::vector<const char *> texts;
    } cases[] = {
        { "Call-Id", { "A@a", "A@b", "a@a" } },
        { "Cseq", { "1 ACK", "1 INVITE", "1 invite", "2 ACK", "10 ACK" } },
        { "From",
          { "Z <sip:a>;tag=z", "<sip:b>;tag=z", "\"\" <sip:b>", "B <sip:b>;epid=z", "B <sip:b>;tag=A",
            "B <sip:b>;tag=a;x", "B <sip:b>;tag=a;epid=A", "B <sip:b>;tag=a;epid=A;x" } },
    };
    for ( auto &[name, inOrder] : cases )
        expectAscending( named( headers::all, name ), inOrder );

    EXPECT_ABORT( telsx___HeaderCallIdCompareFunc( nullptr, nullptr ), "idA" );
    EXPECT_ABORT( telsx___HeaderCseqCompareFunc( nullptr, nullptr ), "csA" );
    EXPECT_ABORT( telsx___HeaderFromCompareFunc( nullptr, nullptr ), "hdrA" );
    auto to = sample<TELSX_HEADER_TO>();
    EXPECT_ABORT( telsx___HeaderToCompareFunc( telsxHeaderToObj( to.get() ), nullptr ), "hdrB" );
}

template <auto ENCODE>
static constexpr auto written = []( auto hdr ) { return linesOf( adopt( ENCODE( hdr ) ) ); };

TEST( Headers, SettersOfCallIdAndCseq )
{
    expectFields( adopt( telsxHeaderCallIdCreate( str( "a" ).get() ) ), written<telsxHeaderCallIdEncode>,
                  "hdr",
                  { FIELD( HeaderCallId, CallId, str( "B@c" ).get(), "B@c", "B@c", str( "a b" ).get(),
                           "telsxCallIdOk( callId )" ) } );
    Ref<TELSX_HEADER_CSEQ> original = adopt( telsxHeaderCseqCreate( 1, str( "ACK" ).get() ) ),
                           changed = original;
    telsxHeaderCseqSetCseq( changed.address(), 2147483647 );
    telsxHeaderCseqSetMethodCstr( changed.address(), "byes", 3 );
    EXPECT_EQ( "2147483647 bye", utf8( telsxHeaderCseqToString( changed.get() ) ) );
    telsxHeaderCseqSetMethodWcstr( changed.address(), L"BYE", -1 );
    EXPECT_EQ( "BYE", utf8( telsxHeaderCseqMethod( changed.get() ) ) );
    EXPECT_EQ( 2147483647, telsxHeaderCseqCseq( changed.get() ) );
    EXPECT_EQ( "1 ACK", utf8( telsxHeaderCseqToString( original.get() ) ) );

    TELSX_HEADER_CSEQ none = nullptr;
    Ref<RT_STRING> bad = str( "a b" );
    EXPECT_ABORT( telsxHeaderCseqCseq( nullptr ), "hdr" );
    EXPECT_ABORT( telsxHeaderCseqMethod( nullptr ), "hdr" );
    EXPECT_ABORT( telsxHeaderCseqSetCseq( nullptr, 1 ), "cs" );
    EXPECT_ABORT( telsxHeaderCseqSetMethod( &none, bad.get() ), "*cs" );
    EXPECT_ABORT( telsxHeaderCseqSetCseq( changed.address(), 2147483648 ), "telsxCseqOk( cseq )" );
    EXPECT_ABORT( telsxHeaderCseqSetMethod( changed.address(), bad.get() ), "telsxMethodOk( method )" );
    EXPECT_ABORT( telsxHeaderCseqCreate( -1, bad.get() ), "telsxCseqOk( cseq )" );
    EXPECT_ABORT( telsxHeaderCseqCreate( 0, bad.get() ), "telsxMethodOk( method )" );
    EXPECT_ABORT( telsxHeaderCallIdCreate( bad.get() ), "telsxCallIdOk( callId )" );
}

static Ref<TELSX_GENERIC_PARAMS> params( std::string_view text )
{
    return adopt( applied( telsx___GenericParamsTryDecode, text ) );
}

#define FROM_TO_FIELDS( NAME )                                                                              \
    {                                                                                                       \
        FIELD( NAME, Iri, str( "sip:b" ).get(), "sip:b", "<sip:b>", str( "" ).get(), "telsxIriOk( iri )" ), \
            OPTION( NAME, DisplayName, str( "B" ).get(), "B", "\"B\" <sip:a>", str( "\r" ).get(),           \
                    "telsxDisplayNameOk( displayName )" ),                                                  \
            OPTION( NAME, Tag, str( "T" ).get(), "T", "<sip:a>;tag=T", str( "" ).get(),                     \
                    "telsxTagOk( tag )" ),                                                                  \
            OPTION( NAME, Epid, str( "E" ).get(), "E", "<sip:a>;epid=E", str( "12345678901234567" ).get(),  \
                    "telsxEpidOk( epid )" ),                                                                \
            FIELD( NAME, GenericParams, params( ";x" ).get(), ";x", "<sip:a>;x", nullptr, "genericParams" ) \
    }

TEST( Headers, SettersOfFromAndTo )
{
    Ref<RT_STRING> iri = str( "sip:a" ), bad = str( "" );
    expectFields( adopt( telsxHeaderFromCreate( iri.get() ) ), written<telsxHeaderFromEncode>, "hdr",
                  FROM_TO_FIELDS( HeaderFrom ) );
    expectFields( adopt( telsxHeaderToCreate( iri.get() ) ), written<telsxHeaderToEncode>, "hdr",
                  FROM_TO_FIELDS( HeaderTo ) );
    EXPECT_ABORT( telsxHeaderFromCreate( bad.get() ), "telsxIriOk( iri )" );
    EXPECT_ABORT( telsxHeaderToCreate( bad.get() ), "telsxIriOk( iri )" );
}

TEST( Headers, FromAndToAreMadeFromEachOther )
{
    for ( const char *line : { "<sip:a>", "\"\" <sip:a>;tag=T;epid=E;tag=\"x\";y" } )
    {
        auto from = adopt( telsxHeaderFromTryDecode( header( "f", { line } ).get() ) );
        auto to = adopt( telsxHeaderToCreateFromHeaderFrom( from.get() ) );
        EXPECT_EQ( utf8( telsxHeaderFromToString( from.get() ) ), utf8( telsxHeaderToToString( to.get() ) ) );
        EXPECT_EQ( adopt( telsxHeaderFromGenericParams( from.get() ) ).get(),
                   adopt( telsxHeaderToGenericParams( to.get() ) ).get() );
        telsxHeaderToSetTag( to.address(), str( "other" ).get() );
        EXPECT_FALSE( utf8( telsxHeaderFromToString( from.get() ) ).ends_with( "other" ) );
        telsxHeaderToDelTag( to.address() );
        telsxHeaderFromDelTag( from.address() );
        EXPECT_EQ( from, adopt( telsxHeaderFromCreateFromHeaderTo( to.get() ) ) );
    }
    EXPECT_ABORT( telsxHeaderToCreateFromHeaderFrom( nullptr ), "hdrFrom" );
    EXPECT_ABORT( telsxHeaderFromCreateFromHeaderTo( nullptr ), "hdrTo" );
}

// What is written leaves out the parameters that fields stand for; the set keeps them.
TEST( Headers, FieldsWinOverParametersOfTheirNames )
{
    auto from = adopt( telsxHeaderFromCreate( str( "sip:a" ).get() ) );
    Ref<TELSX_GENERIC_PARAMS> hidden = params( ";epid;tag=x;y" );
    telsxHeaderFromSetGenericParams( from.address(), hidden.get() );
    EXPECT_FALSE( telsxHeaderFromHasTag( from.get() ) );
    telsxHeaderFromSetTag( from.address(), str( "T" ).get() );
    EXPECT_EQ( "<sip:a>;tag=T;epid;y", utf8( telsxHeaderFromToString( from.get() ) ) );
    telsxHeaderFromSetEpid( from.address(), str( "E" ).get() );
    EXPECT_EQ( "<sip:a>;tag=T;epid=E;y", utf8( telsxHeaderFromToString( from.get() ) ) );
    telsxHeaderFromDelTag( from.address() );
    EXPECT_EQ( "<sip:a>;epid=E;tag=x;y", utf8( telsxHeaderFromToString( from.get() ) ) );
    EXPECT_EQ( hidden.get(), adopt( telsxHeaderFromGenericParams( from.get() ) ).get() );
}
