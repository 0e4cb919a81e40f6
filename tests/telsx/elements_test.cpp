// The elements of the grammar: normal forms, forms in objects and on the wire, ranges. What the skippers match is in
// skip_test.cpp; that a predicate is true exactly if the skipper matches the whole text is shown for all elements by
// fuzz/elements.cpp, whose inputs every build replays.
#include <limits>

#include "../../fuzz/elements.hpp"
#include "telsx/object_tables.hpp"

using namespace support;
using elements::Element;
using elements::named;

static std::string decoded( std::string_view name, std::string_view wire )
{
    return utf8( applied( named( name ).tryDecode, wire ) );
}

TEST( Elements, HaveGoodTextsNormalFormsAndBadTexts )
{
    for ( const Sample &sample : elementSamples )
        for ( const Element &element : elements::all )
        {
            if ( !element.ok || !sample.bad || !isAmong( element.name, sample.names ) )
                continue;
            EXPECT_TRUE( element.ok( str( sample.good ).get() ) ) << element.name << " " << sample.good;
            EXPECT_FALSE( element.ok( str( sample.bad ).get() ) ) << element.name << " " << sample.bad;
            EXPECT_TRUE( !element.normalize
                         || utf8( element.normalize( str( sample.good ).get() ) ) == sample.normal )
                << element.name << " " << sample.good;
        }
}

TEST( Elements, AreEncodedAndDecoded )
{
    const std::pair<std::string_view, std::string_view> quoted[] = {
        { "", R"("")" },
        { "Bob é 😀", R"("Bob é 😀")" },
        { R"(a\b"c)", R"("a\\b\"c")" },
        { "\t\x01\x7F", "\"\\\t\\\x01\\\x7F\"" },
        { " ", R"(" ")" },
        { "    a  ", R"(" \  \ a \ ")" },
        { "a \"  b", R"("a \" \ b")" },
        { { "\0", 1 }, { "\"\\\0\"", 4 } },
    };
    for ( auto name : { "QuotableString", "DisplayName" } )
        for ( auto [plain, wire] : quoted )
        {
            EXPECT_EQ( wire, utf8( named( name ).encode( str( plain ).get() ) ) );
            EXPECT_EQ( plain, decoded( name, wire ) );
        }
    for ( auto name : { "DiversionPrivacy", "DiversionReason", "DiversionScreen" } )
        for ( auto [plain, wire] :
              { std::pair( "User-Busy", "User-Busy" ), { "", "\"\"" }, { "Do not", "\"Do not\"" } } )
        {
            EXPECT_EQ( wire, utf8( named( name ).encode( str( plain ).get() ) ) );
            EXPECT_EQ( plain, decoded( name, wire ) );
        }
}

TEST( Elements, AreReadInOtherFormsToo )
{
    const struct
    {
        const char *names, *wire, *plain; // null if it is not one
    } rows[] = {
        { "DiversionPrivacy DiversionReason DiversionScreen", " \"Do not\"", "Do not" },
        { "QuotableString", " \t\"a\"", "a" },
        { "QuotableString", "\"\t  \x01\"", "\t  \x01" },
        { "QuotableString", R"("\a\é")", "aé" },
        { "DisplayName", "", "" },
        { "DisplayName", "Bob  T. Builder\t", "Bob T. Builder" },
        { "DisplayName", " \"B  C\"", "B  C" },
    };
    for ( auto &[names, wire, plain] : rows )
        for ( const std::string &name : words( names ) )
            EXPECT_EQ( plain, decoded( name, wire ) ) << name << " " << wire;
    const std::pair<const char *, std::vector<const char *>> bad[] = {
        { "DiversionPrivacy DiversionReason DiversionScreen",
          { "", "Do not", " a", "a\"b\"", "\"a\" ", "\"a" } },
        { "QuotableString",
          { "", "a", "\"", R"("\")", R"("a)", R"("a" )", R"("a"b")", "\"a\nb\"", "\"\\\r\"" } },
        { "DisplayName", { " Bob", "a@b", "a \"b\"", "\"a\" b", " ", "Böb", "\"a" } },
    };
    for ( auto &[names, wires] : bad )
        for ( const std::string &name : words( names ) )
            for ( const char *wire : wires )
                EXPECT_EQ( "(null)", decoded( name, wire ) ) << name << " " << wire;
}

TEST( Elements, RangesOfNumbers )
{
    static constexpr int64_t no = std::numeric_limits<int64_t>::max();
    const struct
    {
        RT_BOOL ( *ok )( int64_t );
        int64_t least, most;
    } ranges[] = {
        { telsxCseqOk, 0, 2147483647 }, { telsxResponseNumOk, 1, 4294967295 },
        { telsxDeltaSecondsOk, 0, no }, { telsxPortOk, 0, no },
        { telsxTtlOk, 0, 255 },         { telsxMaxForwardsOk, 0, 255 },
        { telsxQvalueOk, 0, 1000 },     { telsxDiversionCounterOk, 0, 99 },
        { telsxWarnCodeOk, 0, 999 },    { telsxDiversionLimitOk, 0, 99 },
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
    const std::tuple<const char *, int64_t, const char *> rows[] = {
        { "DeltaSeconds", INT64_MAX, "9223372036854775808" },
        { "Port", INT64_MAX, "9223372036854775808" },
        { "Ttl", 255, "256" },
        { "DiversionCounter", 99, "100" },
        { "DiversionLimit", 99, "100" },
    };
    for ( auto [name, most, above] : rows )
    {
        const Element &number = named( name );
        SCOPED_TRACE( name );
        EXPECT_EQ( "0", utf8( number.encodeNumber( 0 ) ) );
        EXPECT_EQ( std::to_string( most ), utf8( number.encodeNumber( most ) ) );
        EXPECT_EQ( most, applied( number.tryDecodeNumber, "000" + std::to_string( most ) ) );
        for ( std::string_view text :
              { "", " ", "-1", "+1", " 1", "1 ", "1x", "0x1", "1.0", "१", "18446744073709551616", above } )
            EXPECT_EQ( -1, applied( number.tryDecodeNumber, text ) ) << text;
    }
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
}

// The conversion itself is tested with the library that does it.
TEST( Host, GoesOutInAsciiAndComesInInUnicode )
{
    for ( auto [host, wire, again] : { std::tuple( "Example.COM", "Example.COM", "Example.COM" ),
                                       { "[2001:DB8::1]", "[2001:DB8::1]", "[2001:DB8::1]" },
                                       { "BÜCHER.a", "xn--bcher-kva.a", "bücher.a" },
                                       { "xn--a", "xn--a", "xn--a" } } )
    {
        EXPECT_EQ( wire, utf8( telsx___HostEncode( str( host ).get() ) ) );
        EXPECT_EQ( again, decoded( "Host", wire ) );
    }
    for ( const char *bad : { "", "a b", "a..b", "-a", "[::1", "a_b", "a:1", "ä b", "bücher" } )
        EXPECT_EQ( "(null)", decoded( "Host", bad ) ) << bad;
}

TEST( Elements, BreachesOfTheContractAbort )
{
    Ref<RT_STRING> space = str( " " ), line = str( "a\nb" ), control = str( "\x01" );
    const struct
    {
        RT_STRING ( *function )( RT_STRING );
        RT_STRING argument;
        const char *condition;
    } rows[] = {
        { telsxTokenNormalize, space.get(), "telsxTokenOk( token )" },
        { telsxOptionTagNormalize, space.get(), "telsxOptionTagOk( optionTag )" },
        { telsxProtocolNameNormalize, space.get(), "telsxProtocolNameOk( protocolName )" },
        { telsxPriorityValueNormalize, space.get(), "telsxPriorityValueOk( priority )" },
        { telsxSubstateValueNormalize, space.get(), "telsxTokenOk( token )" },
        { telsxEventReasonValueNormalize, nullptr, "eventReasonValue" },
        { telsxSubjectNormalize, control.get(), "subject invalid: telsxSubjectOk( subject )" },
        { telsxOrganizationNormalize, control.get(),
          "organization invalid: telsxOrganizationOk( organization )" },
        { telsx___DisplayNameEncode, line.get(), "telsxDisplayNameOk( displayName )" },
        { telsx___QuotableStringEncode, line.get(),
          "backing[i] != RT_CHAR_CARRIAGE_RETURN && backing[i] != RT_CHAR_LINE_FEED" },
        { telsx___HostEncode, space.get(),
          "length && length == telsx___SkipHost( rtStringBacking( result ), length )" },
    };
    for ( auto &[function, argument, condition] : rows )
        EXPECT_ABORT( function( argument ), condition );

    EXPECT_ABORT( telsxPriorityValueOk( nullptr ), "priority" );
    EXPECT_ABORT( telsxHistoryInfoIndexOk( nullptr ), "index" );
    EXPECT_ABORT( telsx___TtlEncode( 256 ), "telsxTtlOk( ttl )" );
    EXPECT_ABORT( telsx___QvalueEncode( 1001 ), "telsxQvalueOk( qvalue )" );
    EXPECT_ABORT( telsxCseqIncrementOk( -1 ), "telsxCseqOk( cseq )" );
    EXPECT_ABORT( telsxResponseNumIncrementOk( 0 ), "telsxResponseNumOk( responseNum )" );
}
