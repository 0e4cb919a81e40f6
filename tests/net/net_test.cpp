// IP addresses and internationalised domain names.
#include <random>

#include "net/net.h"
#include "rt/model.hpp"

using namespace support;

static void expectStops( rt::Skipper skip, const std::string &table )
{
    for ( const std::string &text : words( table ) )
        expectStop( skip, text );
}

static Ref<NET_ADDRESS> address( std::string_view utf8 )
{
    return adopt( applied( netAddressTryCreateFromChars, utf8 ) );
}

static std::string shrunk( std::string_view utf8 )
{
    Ref<NET_ADDRESS> from = address( utf8 );
    return from ? support::utf8( netAddressToStringShrink( from.get() ) ) : "(null)";
}

TEST( NetAddress, IpV4IsMeasured )
{
    expectStops( net___SkipIpV4Address,
                 "1.2.3.4| 255.255.255.255| 0.0.0.0| 1.2.3.4|x 1.2.3.4|. 1.2.3.45|.6 "
                 "|1.2.3.256 |1.2.3.2555 |01.2.3.4 |1.2.3.00 |1.2.3 |1.2.3. |1..2.3 "
                 "|.1.2.3.4 | |a.b.c.d |-1.2.3.4 |\t1.2.3.4 |1.2.3.99999999999999999999 "
                 "|1.2.3.\xD9\xA4" );
}

TEST( NetAddress, IpV6IsMeasured )
{
    expectStops( net___SkipIpV6Address,
                 "::| |: ::|: ::1| 1::| 1::|: 1::2|: 1::2|::3 |1:2 |1:2:3:4:5:6:7 "
                 "1:2:3:4:5:6:7:8| 1:2:3:4:5:6:7:8|:9 1:2:3:4:5:6:7:8|:: 1:2:3:4:5:6:7::| "
                 "1:2:3:4:5:6:7::|8 ::2:3:4:5:6:7:8| ::1:2:3:4:5:6:7|:8 ABCD:ef01::1234|5 "
                 "|12345:: ::|g ::1.2.3.4| ::1|.2.3.256 ::1.2.3.4|:5 ::ffff:1.2.3.4| "
                 "1:2:3:4:5:6:1.2.3.4| |1:2:3:4:5:1.2.3.4 1:2:3:4:5:6:7:1|.2.3.4 "
                 "1:2:3:4:5::1.2.3.4| 1:2:3:4:5:6::1|.2.3.4 |1.2.3.4 |[::1] |" );
}

TEST( NetAddress, TextIsTheShortest )
{
    // A single zero is not compressed.
    for ( const std::string &row : words(
              "192.0.2.1=192.0.2.1 2001:0DB8:0:0:0:0:0:1=2001:db8::1 0:0:0:0:0:0:0:0=:: 0:0:0:0:0:0:0:1=::1 "
              "1:0:0:0:0:0:0:0=1:: 2001:db8:0:1:1:1:1:1=2001:db8:0:1:1:1:1:1 "
              "2001:db8::1:1:1:1:1=2001:db8:0:1:1:1:1:1 2001:0:0:1:0:0:0:1=2001:0:0:1::1 "
              "2001:db8:0:0:1:0:0:1=2001:db8::1:0:0:1 ::FFFF:192.0.2.128=::ffff:192.0.2.128 "
              "0:0:0:0:0:ffff:0:0=::ffff:0.0.0.0 ::1.2.3.4=::102:304 "
              "1:2:3:4:5:6:255.254.253.252=1:2:3:4:5:6:fffe:fdfc 1.2.3.4x=(null) =(null) host=(null)" ) )
        EXPECT_EQ( halves( row ).second, shrunk( halves( row ).first ) ) << row;
}

TEST( NetAddress, FamilyThenBytesOrder )
{
    auto make = []( const char *text ) { return netAddressObj( address( text ).take() ); };
    model::expectAscending( make, "1.2.3.4", "127.0.0.1", "255.0.0.0", "::", "::1",
                            "1::", "8000::", "ffff::" );
    EXPECT_TRUE( netAddressEquals( address( "1::0" ).get(), address( "1:0::" ).get() ) );
    EXPECT_FALSE( netAddressEquals( address( "::1.2.3.4" ).get(), address( "1.2.3.4" ).get() ) );
}

static bool hostOk( const Ref<RT_STRING> &host ) { return netDnsIdnaDomainNameOk( host.get() ); }
static Ref<RT_STRING> toAscii( const Ref<RT_STRING> &host )
{
    return adopt( netDnsIdnaDomainNameToAscii( host.get() ) );
}
static Ref<RT_STRING> toUnicode( const Ref<RT_STRING> &host )
{
    return adopt( netDnsIdnaDomainNameToUnicode( host.get() ) );
}

static std::string repeated( std::string_view text, int count )
{
    std::string result;
    while ( count-- > 0 )
        result += text;
    return result;
}

TEST( NetDnsIdna, AsciiHostsStayAsTheyAre )
{
    std::vector<std::string> table{ "a",        "example.COM",   "a.b.",  "a-b.c--d",
                                    "1.2.3.4",  "1.2.3.4.5",     "256.1", "a%41b.%C3%a4",
                                    "[::1]",    "[2001:DB8::1]", "xn--a", "xn--99999999999999",
                                    "xn--a%41b" };
    for ( std::string text : { repeated( "a", 5000 ), repeated( "xn--a.", 5000 ),
                               "xn--" + repeated( "9", 60 ), "xn--4ca" + repeated( ".a", 200 ) } )
        table.push_back( text );
    for ( const std::string &host : table )
    {
        Ref<RT_STRING> text = str( host );
        ASSERT_TRUE( hostOk( text ) ) << host;
        EXPECT_EQ( text.get(), toAscii( text ).get() ) << host;
        EXPECT_EQ( text.get(), toUnicode( text ).get() ) << host;
    }
}

TEST( NetDnsIdna, UnicodeNamesConvert )
{
    struct
    {
        const char *name, *ascii, *unicode;
    } const table[] = { { "münchen.de", "xn--mnchen-3ya.de", "münchen.de" },
                        { "MÜNCHEN.DE.", "xn--mnchen-3ya.DE.", "münchen.DE." },
                        { "faß.de", "xn--fa-hia.de", "faß.de" }, // not fass.de
                        { "a。b．c｡", "a.b.c.", "a.b.c." },
                        { "１.2.3.4", "1.2.3.4", "1.2.3.4" },
                        { "ＡＢＣ", "abc", "abc" },
                        { "u\u0308", "xn--tda", "ü" },
                        { "ä\u00AD", "xn--4ca", "ä" },
                        { "XN--MNCHEN-3YA.Xn--a.EU", "XN--MNCHEN-3YA.Xn--a.EU", "münchen.Xn--a.EU" },
                        { "ä.%41.xn--mnchen-3ya", "xn--4ca.%41.xn--mnchen-3ya", "ä.%41.münchen" },
                        { "ｘn--4ca", "xn--4ca", "ä" } };
    // The longest label has 63 characters.
    const std::string most = "ä" + repeated( "a", 55 ), mostAscii = "xn--" + repeated( "a", 55 ) + "-9te";
    EXPECT_EQ( mostAscii, utf8( toAscii( str( most ) ) ) );
    EXPECT_EQ( most, utf8( toUnicode( str( mostAscii ) ) ) );
    EXPECT_FALSE( hostOk( str( most + "a" ) ) );
    for ( auto &row : table )
    {
        ASSERT_TRUE( hostOk( str( row.name ) ) ) << row.name;
        EXPECT_EQ( row.ascii, utf8( toAscii( str( row.name ) ) ) );
        EXPECT_EQ( row.unicode, utf8( toUnicode( str( row.ascii ) ) ) );
    }
}

TEST( NetDnsIdna, OtherTextIsNoHost )
{
    std::vector<std::string> table{ "",          ".",      ".a",       "a..b", "-a",      "a-",
                                    "a-.b",      "xn--",   "xn--abc-", "a_b",  "a b",     "a%4",
                                    "a%",        "a:1",    "[]",       "[::1", "[::g]",   "[::1]a",
                                    "[1.2.3.4]", "::1",    "_ä",       "ä%41", "ä：5060", "ä％41",
                                    "％41",      "-ä",     "－a",      "ä..a", "。ä",     "\u00AD",
                                    "\u0300a",   "\uE000", "ä.a_b",    "[ä]",  "ä/b",     "a\u202Eb" };
    for ( std::string text :
          { std::string( "\xC3\xA4\0b", 4 ), repeated( "ä", 60 ), repeated( "ä.", 100 ),
            repeated( "ä.", 100000 ), repeated( "ä", 100000 ), repeated( "\u00AD", 300 ) + "a" } )
        table.push_back( text );
    for ( const std::string &host : table )
        EXPECT_FALSE( hostOk( str( host ) ) ) << host.substr( 0, 100 );
    // 253 characters at most, the ending dot not counted.
    std::string most = "ä." + repeated( "a.", 122 );
    EXPECT_TRUE( hostOk( str( most + "a" ) ) );
    EXPECT_TRUE( hostOk( str( most + "a." ) ) );
    EXPECT_FALSE( hostOk( str( most + "aa" ) ) );
}

TEST( NetDnsIdna, EveryHostConvertsAndConvertsBack )
{
    const char *pieces[] = { "xn--", "XN--",   "4ca", "mnchen-3ya", "ä",      "ß", "é\u0301", "。", "１",
                             ".",    "..",     "-",   "%C3",        "%A4",    "a", "B",       "[",  "::1",
                             "]",    "\u200D", "ا",   "ｘ",         "\u00AD", "_", "♥" };
    std::mt19937 random( 1 );
    int hosts = 0;
    for ( int i = 0; i < 20000; ++i )
    {
        std::string host;
        for ( auto count = random() % 6 + 1; count > 0; --count )
            host += pieces[random() % std::size( pieces )];
        if ( !hostOk( str( host ) ) )
            continue;
        ++hosts;
        Ref<RT_STRING> ascii = toAscii( str( host ) );
        EXPECT_TRUE( hostOk( ascii ) && ascii == toAscii( ascii ) ) << host;
        EXPECT_EQ( std::string::npos,
                   utf8( ascii ).find_first_not_of( "%-.:[]0123456789abcdefghijklmnopqrstuvwxyzABCNX" ) )
            << host;
        Ref<RT_STRING> unicode = toUnicode( ascii );
        ASSERT_TRUE( hostOk( unicode ) ) << host;
        Ref<RT_STRING> again = toAscii( unicode );
        EXPECT_EQ( unicode, toUnicode( again ) ) << host;
        EXPECT_TRUE( hostOk( toUnicode( str( host ) ) ) ) << host;
        rtStringToLower( ascii.address() );
        rtStringToLower( again.address() );
        EXPECT_EQ( utf8( ascii ), utf8( again ) ) << host;
    }
    EXPECT_GT( hosts, 1000 );
}

TEST( NetDeathTest, ContractsAreKept )
{
    EXPECT_ABORT( netDnsIdnaDomainNameToAscii( str( "a b" ).get() ), "netDnsIdnaDomainNameOk( name )" );
    EXPECT_ABORT( net___SkipIpV6Address( nullptr, -1 ), "length >= 0" );
    EXPECT_ABORT( netAddressTryCreateFromChars( nullptr, 1 ), "chs || length == 0" );
}
