// The elements of the grammar: what is one, its normal form, its forms in objects and on the wire. That a
// predicate is true exactly where the skipper takes the whole text is shown for all of them in
// elements_property_test.cpp.
#include <limits>

#include "../../fuzz/elements.hpp"
#include "telsx/skip_tables.hpp"

using namespace support;
using elements::Element;
using elements::named;

static std::string normalized( std::string_view name, std::string_view text )
{
    return utf8( named( name ).normalize( str( text ).get() ) );
}

static std::string encoded( std::string_view name, std::string_view plain )
{
    return utf8( named( name ).encode( str( plain ).get() ) );
}

static std::string decoded( std::string_view name, std::string_view wire )
{
    return utf8( applied( named( name ).tryDecode, wire ) );
}

// Words

TEST( Elements, TokensUnderAllTheirNames )
{
    for ( auto name :
          { "Token", "ProtocolName", "ProtocolVersion", "OptionTag", "Transport", "ContentCoding",
            "DispositionType", "Handling", "PrivValue", "Purpose", "PriorityValue", "SubstateValue",
            "EventReasonValue", "Method", "Tag", "Branch", "ReasonProtocol", "Pseudonym" } )
    {
        SCOPED_TRACE( name );
        expectCounts( named( name ).skip, "INVITE", "a.-!%*_+`'~Z09", "*", ".", "0| ", "a|=b", "a|/b", "a|@b",
                      "a|(", "a|é", "|", "| a", "|é", "|\"a\"" );
        if ( !named( name ).normalize )
            continue;
        bool isUpper = name == std::string_view( "ProtocolName" );
        EXPECT_EQ( isUpper ? "SIP-Z.1" : "sip-z.1", normalized( name, "Sip-Z.1" ) );
    }
    EXPECT_TRUE( telsxMethodOk( str( "INVITE" ).get() ) );
}

TEST( Elements, OtherWords )
{
    expectCounts( telsx___SkipTokenNodot, "a-!%*_+`'~Z09", "a|.b", "|.", "|" );
    for ( rt::Skipper skip : { telsx___SkipMediaType, telsx___SkipMediaSubtype } )
        expectCounts( skip, "a", "A.b|/c", "**", "*a", "a*", "|", "|*", "|*/", "| a" );
    expectCounts( telsx___SkipRefresher, "uac", "UaS", "uac|x", "|", "|ua", "|uax", "| uac" );
    EXPECT_EQ( "uas", normalized( "Refresher", "UAS" ) );
    EXPECT_FALSE( telsxRefresherOk( str( "uacx" ).get() ) );

    expectCounts( telsx___SkipEventType, "presence.winfo", "a.b.c|;", "a|.", "a|..b", "a.b|. c", "|.a", "|" );
    expectCounts( telsx___SkipEpid, "a", "0123456789.bcdef", "0123456789.bcdef|0", "a| ", "|", "| a" );
    expectCounts( telsx___SkipCallId, "abc", "a@b", "a@b|@c", "()<>:\\\"/[]?{}%@h.i:1|;", "a| @b", "|",
                  "|abc@", "|abc@ b", "|@abc", "|a@=" );
    expectCounts( telsx___SkipSipCleanMsgId, "a.b@c.d", "a@b_c", "a@b.", "a@b.|.", "a@[::1]", "a@%41.b|@",
                  "|", "|a", "|a@", "|a.@b", "|@b", "|a@.b", "|a @b", "|\"a@b\"" );
    expectCounts( telsx___SkipSipInstance, "<urn:uuid:f8-%41>", "<a;b?c=d,@$>", "<a>|>", "|", "|<", "|<>",
                  "|<a", "|<a >", "|< a>", "|<%4>", "|<é>", "| <a>", "|a>" );
}

TEST( Elements, WordsThatMayStandInQuotes )
{
    for ( auto name : { "DiversionPrivacy", "DiversionReason", "DiversionScreen" } )
    {
        SCOPED_TRACE( name );
        expectCounts( named( name ).skip, "user-busy", "\"a \\\" b\"", " \"\"", "a| b", "a|\"b\"", "\"a\"| ",
                      "|", "| a", "|é", "|\"a" );
        EXPECT_EQ( "\"a é", normalized( name, "\"A É" ) ) << "any text has a lower case";
        EXPECT_EQ( "User-Busy", encoded( name, "User-Busy" ) );
        EXPECT_EQ( "\"\"", encoded( name, "" ) );
        EXPECT_EQ( "\"Do not\"", encoded( name, "Do not" ) );
        EXPECT_EQ( "User-Busy", decoded( name, "User-Busy" ) );
        EXPECT_EQ( "Do not", decoded( name, " \"Do not\"" ) );
        for ( auto wire : { "", "Do not", " a", "a\"b\"", "\"a\" ", "\"a" } )
            EXPECT_EQ( "(null)", decoded( name, wire ) ) << wire;
    }
}

// Texts

TEST( Elements, QuotableString )
{
    const struct
    {
        std::string_view plain, wire;
    } pairs[] = {
        { "", R"("")" },
        { "Bob é 😀", R"("Bob é 😀")" },
        { R"(a\b"c)", R"("a\\b\"c")" },
        { "\t\x01\x7F", "\"\\\t\\\x01\\\x7F\"" },
        { " ", R"(" ")" },
        { "  ", R"(" \ ")" },
        { "   ", R"(" \  ")" },
        { "    a  ", R"(" \  \ a \ ")" },
        { "a \"  b", R"("a \" \ b")" },
        { { "\0", 1 }, { "\"\\\0\"", 4 } },
    };
    for ( auto name : { "QuotableString", "DisplayName" } )
        for ( auto [plain, wire] : pairs )
        {
            EXPECT_TRUE( named( name ).ok( str( plain ).get() ) ) << plain;
            EXPECT_EQ( wire, encoded( name, plain ) );
            EXPECT_EQ( plain, decoded( name, wire ) );
        }
    for ( auto [wire, plain] : { std::pair( " \t\"a\"", "a" ),
                                 { "\"\t  \x01\"", "\t  \x01" },
                                 { R"("\a\é")", "aé" },
                                 { "", "(null)" },
                                 { "a", "(null)" },
                                 { "\"", "(null)" },
                                 { R"("\")", "(null)" },
                                 { R"("a)", "(null)" },
                                 { R"("a" )", "(null)" },
                                 { R"("a"b")", "(null)" },
                                 { "\"a\nb\"", "(null)" },
                                 { "\"\\\r\"", "(null)" } } )
        EXPECT_EQ( plain, decoded( "QuotableString", wire ) ) << wire;
    for ( auto name : { "QuotableString", "DisplayName", "ReasonText", "WarnText" } )
        for ( auto plain : { "a\r", "\nb" } )
            EXPECT_FALSE( named( name ).ok( str( plain ).get() ) );
    for ( rt::Skipper skip : { telsx___SkipReasonText, telsx___SkipWarnText } )
        expectCounts( skip, " \"a\"|b", "|\"", "|a" );
}

TEST( Elements, DisplayNameOfTokens )
{
    for ( auto [wire, plain] : { std::pair( "", "" ),
                                 { "Bob", "Bob" },
                                 { "Bob  T. Builder\t", "Bob T. Builder" },
                                 { " \"B  C\"", "B  C" },
                                 { " Bob", "(null)" },
                                 { "a@b", "(null)" },
                                 { "a \"b\"", "(null)" },
                                 { "\"a\" b", "(null)" },
                                 { " ", "(null)" },
                                 { "Böb", "(null)" },
                                 { "\"a", "(null)" } } )
        EXPECT_EQ( plain, decoded( "DisplayName", wire ) ) << wire;
}

TEST( Elements, SubjectAndOrganization )
{
    for ( auto name : { "Subject", "Organization" } )
    {
        SCOPED_TRACE( name );
        expectCounts( named( name ).skip, "", "a", "\"Some  text\", é\t😀| \t", "a| \x01", "a|\x7F", "a|\n",
                      "| a", "|\x01", "a b" );
        for ( auto [text, normal] : { std::pair( "", "" ),
                                      { " \t ", "" },
                                      { "\tA  b ", "A b" },
                                      { "a\u00A0b", "a\u00A0b" },
                                      { "a\t \tb  c", "a b c" } } )
        {
            EXPECT_TRUE( named( name ).ok( str( text ).get() ) ) << text;
            EXPECT_EQ( normal, normalized( name, text ) );
        }
        for ( auto text : { "\x01", "a \x01", "a\nb", " \x7F", "a\r" } )
            EXPECT_FALSE( named( name ).ok( str( text ).get() ) ) << text;
    }
}

// Numbers

TEST( Elements, RangesOfNumbers )
{
    static constexpr int64_t no = std::numeric_limits<int64_t>::max();
    const struct
    {
        RT_BOOL ( *ok )( int64_t );
        int64_t least, most;
    } ranges[] = {
        { telsxCseqOk, 0, 2147483647 },
        { telsxResponseNumOk, 1, 4294967295 },
        { telsxDeltaSecondsOk, 0, no },
        { telsxPortOk, 0, no },
        { telsxTtlOk, 0, 255 },
        { telsxMaxForwardsOk, 0, 255 },
        { telsxDiversionCounterOk, 0, 99 },
        { telsxDiversionLimitOk, 0, 99 },
        { telsxQvalueOk, 0, 1000 },
    };
    for ( const auto &[ok, least, most] : ranges )
    {
        SCOPED_TRACE( most );
        EXPECT_TRUE( ok( least ) && ok( most ) );
        EXPECT_FALSE( ok( least - 1 ) );
        EXPECT_FALSE( most < no && ok( most + 1 ) );
        EXPECT_FALSE( ok( std::numeric_limits<int64_t>::min() ) );
    }
    EXPECT_TRUE( telsxCseqIncrementOk( 2147483646 ) );
    EXPECT_FALSE( telsxCseqIncrementOk( 2147483647 ) );
    EXPECT_FALSE( telsxCseqScarce( 2147483547 ) );
    EXPECT_TRUE( telsxCseqScarce( 2147483548 ) );
    EXPECT_TRUE( telsxResponseNumIncrementOk( 4294967294 ) );
    EXPECT_FALSE( telsxResponseNumIncrementOk( 4294967295 ) );
}

TEST( Elements, DecimalNumbers )
{
    for ( auto name : { "DeltaSeconds", "Port", "Ttl", "DiversionCounter", "DiversionLimit" } )
    {
        const Element &number = named( name );
        int64_t most = number.numberOk( 1000 ) ? INT64_MAX : number.numberOk( 100 ) ? 255 : 99;
        SCOPED_TRACE( name );
        EXPECT_EQ( "0", utf8( number.encodeNumber( 0 ) ) );
        EXPECT_EQ( std::to_string( most ), utf8( number.encodeNumber( most ) ) );
        EXPECT_EQ( most, applied( number.tryDecodeNumber, "000" + std::to_string( most ) ) );
        std::string_view above = most == 99 ? "100" : most == 255 ? "256" : "9223372036854775808";
        for ( std::string_view text :
              { "", " ", "-1", "+1", " 1", "1 ", "1x", "0x1", "1.0", "१", "18446744073709551616" } )
            EXPECT_EQ( -1, applied( number.tryDecodeNumber, text ) ) << text;
        EXPECT_EQ( -1, applied( number.tryDecodeNumber, above ) );
    }
    for ( rt::Skipper skip :
          { telsx___SkipDeltaSeconds, telsx___SkipPort, telsx___SkipTtl, telsx___SkipReasonCause } )
        expectCounts( skip, "0", "4000", "99999999999999999999|.", "|", "| 1", "|-1", "|१" );
    for ( rt::Skipper skip : { telsx___SkipDiversionCounter, telsx___SkipDiversionLimit } )
        expectCounts( skip, "1", "12", "12|x", "|", "|123", "|x" );
}

TEST( Elements, Qvalue )
{
    for ( auto [number, text] :
          { std::pair( 0, "0.000" ), { 5, "0.005" }, { 500, "0.500" }, { 999, "0.999" }, { 1000, "1.000" } } )
    {
        EXPECT_EQ( text, utf8( telsx___QvalueEncode( number ) ) );
        EXPECT_EQ( number, applied( telsx___QvalueTryDecode, text ) );
    }
    for ( auto [text, number] :
          { std::pair( "", 0 ), { "0", 0 },       { "0.", 0 },      { "0.5", 500 }, { "0.05", 50 },
            { "1", 1000 },      { "1.", 1000 },   { "1.00", 1000 }, { "2", -1 },    { ".5", -1 },
            { "0,5", -1 },      { "00", -1 },     { "0.1234", -1 }, { "0.x", -1 },  { "1.5", -1 },
            { "1.001", -1 },    { "1.0000", -1 }, { "-0", -1 },     { " 0", -1 },   { "0.5 ", -1 } } )
        EXPECT_EQ( number, applied( telsx___QvalueTryDecode, text ) ) << text;
    expectCounts( telsx___SkipQvalue, "0", "1.", "0|1", "0.123|4", "1.000|0", "1.|5", "1.0|1", "0.|x", "|",
                  "|2", "|.5", "| 0" );
}

TEST( Elements, NumbersKeptAsText )
{
    expectCounts( telsx___SkipTimestampValue, "1", "1.", "1.5", "1.5 2", "1.5 \t.2", "1 2.", "1 ", "1.|.",
                  "1.5 .|.", "1 2| 3", "1|x", "1 |x", "|", "|.5", "| 1" );
    expectCounts( telsx___SkipHistoryInfoIndex, "0", "1", "10.0.123", "1.2|x", "1| .2", "|", "|.1", "|1.",
                  "|1..2", "|1.x", "|01", "|1.02", "|1.00", "| 1" );
    for ( auto name : { "ReasonCause", "TimestampValue", "HistoryInfoIndex" } )
        EXPECT_FALSE( named( name ).ok( str( "" ).get() ) );
}

// What aborts

TEST( Elements, BreachesOfTheContractAbort )
{
    Ref<RT_STRING> space = str( " " ), line = str( "a\nb" ), control = str( "\x01" );
    EXPECT_ABORT( telsxOptionTagNormalize( space.get() ), "telsxOptionTagOk( optionTag )" );
    EXPECT_ABORT( telsxProtocolNameNormalize( space.get() ), "telsxProtocolNameOk( protocolName )" );
    EXPECT_ABORT( telsxMediaTypeNormalize( str( "*" ).get() ), "telsxMediaTypeOk( mediaType )" );
    EXPECT_ABORT( telsxRefresherNormalize( str( "uacx" ).get() ), "telsxRefresherOk( refresher )" );
    EXPECT_ABORT( telsxPriorityValueNormalize( space.get() ), "telsxPriorityValueOk( priority )" );
    EXPECT_ABORT( telsxPriorityValueOk( nullptr ), "priority" );
    EXPECT_ABORT( telsxSubstateValueNormalize( nullptr ), "substateValue" );
    EXPECT_ABORT( telsxSubstateValueNormalize( space.get() ), "telsxTokenOk( token )" );
    EXPECT_ABORT( telsxEventReasonValueNormalize( nullptr ), "eventReasonValue" );
    EXPECT_ABORT( telsxWarnAgentOk( nullptr ), "warnAgent" );
    EXPECT_ABORT( telsxDiversionReasonNormalize( nullptr ), "diversionReason" );
    EXPECT_ABORT( telsx___DiversionScreenEncode( nullptr ), "diversionScreen" );

    const char *lineEnd = "backing[i] != RT_CHAR_CARRIAGE_RETURN && backing[i] != RT_CHAR_LINE_FEED";
    EXPECT_ABORT( telsx___QuotableStringEncode( line.get() ), lineEnd );
    EXPECT_ABORT( telsx___DisplayNameEncode( line.get() ), "telsxDisplayNameOk( displayName )" );
    EXPECT_ABORT( telsxQuotableStringOk( nullptr ), "quotableString" );
    EXPECT_ABORT( telsxWarnTextOk( nullptr ), "warnText" );
    EXPECT_ABORT( telsxSubjectOk( nullptr ), "subject" );
    EXPECT_DEATH( telsxSubjectNormalize( control.get() ), "subject invalid" );
    EXPECT_DEATH( telsxOrganizationNormalize( control.get() ), "organization invalid" );

    EXPECT_ABORT( telsx___TtlEncode( 256 ), "telsxTtlOk( ttl )" );
    EXPECT_ABORT( telsx___DeltaSecondsEncode( -1 ), "telsxDeltaSecondsOk( deltaSeconds )" );
    EXPECT_ABORT( telsx___DiversionLimitEncode( 100 ), "telsxDiversionLimitOk( diversionLimit )" );
    EXPECT_ABORT( telsx___QvalueEncode( 1001 ), "telsxQvalueOk( qvalue )" );
    EXPECT_ABORT( telsxCseqIncrementOk( -1 ), "telsxCseqOk( cseq )" );
    EXPECT_ABORT( telsxCseqScarce( 2147483648 ), "telsxCseqOk( cseq )" );
    EXPECT_ABORT( telsxResponseNumIncrementOk( 0 ), "telsxResponseNumOk( responseNum )" );
    EXPECT_ABORT( telsxHistoryInfoIndexOk( nullptr ), "index" );

    const RT_CHAR ch = 'a';
    for ( auto name : { "Token", "CallId", "Subject", "Organization", "Epid", "Refresher", "WarnAgent",
                        "Qvalue", "TimestampValue" } )
    {
        EXPECT_ABORT( named( name ).skip( &ch, -1 ), "length >= 0" );
        EXPECT_ABORT( named( name ).skip( nullptr, 1 ), "chs || length == 0" );
    }
}
