// The skippers that measure whole values of headers.
#include "telsx/skip_tables.hpp"

using namespace support;

TEST( CompositeSkip, DisplayName )
{
    expectCounts( telsx___SkipDisplayName, "", "\"\"", "  \"Bob\"| <sip:a>", "\"a\"| b", "\"\\\"<é\"|<",
                  "Bob |<sip:a>", "Bob  T. Builder\t|<", "|<sip:a>", "| Bob", "a |\"b\"", "a |é",
                  "|\"Bob <sip:a>", "|\"\\", "Bob |@" );
}

TEST( CompositeSkip, NameAddr )
{
    expectCounts( telsx___SkipNameAddr, "<sip:a>", " \t<sip:a> \t|;x", "\"B\"<sip:a>|<", "\"B\" <sip:a>",
                  "Bob T <sip:a>|,", "Bob<tel:+1;x=2>", "<sip:a;p=1?h=%41,@>|,", "<urn:é>",
                  "|\"B\" \"C\" <sip:a>", "|B \"C\" <sip:a>", "|sip:a", "|<sip:a", "| < sip:a>", "|<>",
                  "|<sip>", "|<sip:a >", "|<sip:%4>", "|<sip:<a>>", "|Bob", "|\"Bob", "|>", "|Böb <sip:a>" );
}

TEST( CompositeSkip, GenericParam )
{
    expectCounts( telsx___SkipGenericParam, "a", "a| ", "a| ;b", "a=b", "a =\tb| ;", "a=b|:c", "a=b.c.|:5",
                  "a=[::1]|:5", "a=\"q;,=\\\"\"| ;", "a= \"\"", "a=%zz", "a=b_c", "a|;=b", "a| b=c", "|",
                  "| a", "|=b", "|a=", "|a= ", "|a=;b", "|a==b", "|a=é", "|a=[::1", "|a=\"b", "|a=(c)",
                  "|\"a\"=b", "|é=b" );
}

TEST( CompositeSkip, GenericParams )
{
    expectCounts( telsx___SkipGenericParams, "", ";a", " ; a\t; b = c| ;", ";a=\"x;y\";b|,", ";a|;", ";a|;;b",
                  ";a| ", ";a| ; ", ";a;a;a", ";a|;b=;c", ";a=[::1];b", "|a;b", "|;", "|;=", "|;a=", "|;a=;b",
                  "|;;a", "|\"\";a", "| " );
}

TEST( CompositeSkip, Contact )
{
    expectCounts( telsx___SkipContact, "sip:a@b", "sip:a@b;p=1;q|,", "sip:a ;p|;q=", "sip:a| ", "sip:a?h=v;p",
                  "tel:+1;ext=2", "sip:a|\"", "<sip:a;u=1>;p=\"x,y\"|, <sip:b>", "\"B\" <sip:a> ;p| ",
                  "Bob <sip:a> |,", "a:|<", "|", "|*", "|Bob", "|Bob sip:a", "|;p", "|<sip:a", "| sip:a",
                  "|\"B\" sip:a", "|sip" );
}

TEST( CompositeSkip, ValuesInBrackets )
{
    for ( rt::Skipper skip : { telsx___SkipRoute, telsx___SkipDiversion, telsx___SkipHistoryInfo } )
        expectCounts( skip, "<sip:a;lr>", "<sip:a>;x=y|,<sip:b>", "\"D\" <sip:a>;reason=user-busy",
                      "D <sip:a> |,", "<sip:a?Reason=SIP%3Bcause=1>;index=1.2|;", "<sip:a>|;x=", "|sip:a",
                      "|sip:a;x", "|", "|*", "|<sip:a", "|D" );
    for ( rt::Skipper skip : { telsx___SkipAlertInfo, telsx___SkipCallInfo, telsx___SkipErrorInfo } )
        expectCounts( skip, "<http://a/b.wav?c#d>;x", " <sip:a> ; purpose = icon| , <sip:b>",
                      "<sip:a>|;=", "|sip:a", "|\"D\" <sip:a>", "|Bob <sip:a>", "|< sip:a>", "|<sip:a", "|" );
}

TEST( CompositeSkip, IdentityValue )
{
    expectCounts( telsx___SkipIdentityValue, "<sip:a;u=1>|;x", "sip:a|;x", "tel:+1|;ext=2",
                  "\"B\" <sip:a> |,", "sip:a| ,", "|", "|*", "|;x", "|Bob" );
}

TEST( CompositeSkip, ValuesThatBeginWithAToken )
{
    expectCounts( telsx___SkipReason, "Q.850", "SIP;cause=200;text=\"a,b\"|, Q.850", "SIP ;cause=1", "SIP| x",
                  "SIP|;cause=", "|", "| SIP", "|;cause=1", "|\"SIP\"" );
    expectCounts( telsx___SkipAcceptEncoding, "gzip;q=0.5|, *", "*", "*;q=0", "gzip| ", "|;q=1", "|",
                  "| gzip" );
    expectCounts( telsx___SkipAccept, "text/plain", "text / plain ; q=0.5| , a", "text/*", "text/*;q=1|;",
                  "*/*", "* / *;a=b", "*/*| ", "text/plain|/x", "**/x", "text/*x", "|*/plain", "|*/*x",
                  "|*/**", "|", "|*", "|*/", "|text", "|text/", "|/plain", "|text;q=1", "| text/plain",
                  "|text/\"x\"" );
}

TEST( CompositeSkip, Via )
{
    expectCounts( telsx___SkipVersion, "SIP/2.0", "sip \t/ 2.0|  ", "SIP/2.0|/UDP", "|", "|SIP", "|SIP/",
                  "|/2.0", "|SIP 2.0", "| SIP/2.0" );
    expectCounts(
        telsx___SkipVia, "SIP/2.0/UDP h", "SIP / 2.0 / UDP \th : 5060 ; a ; b=c| ;", "SIP/2.0/UDP h| ",
        "SIP/2.0/UDP h| i", "SIP/2.0/TLS [::1]:5061;received=::1;branch=z9hG4bK-1|, SIP/2.0/UDP i",
        "SIP/2.0/UDP 1.2.3.4.|,", "SIP/2.0/UDP h:1|:2", "SIP/2.0/UDP h;a|;=b",
        "SIP/2.0/UDP h;received=fe80::1|%eth0;a", "SIP/2.0/UDP h;received;received=[::1];received=h.i",
        "SIP/2.0/UDP h:99999999999999999999|,", "|", "|SIP/2.0", "|SIP/2.0 h", "|SIP/2.0/", "|SIP/2.0/UDP",
        "|SIP/2.0/UDP ", "|SIP/2.0/UDPh", "|SIP/2.0/UDP[::1]", "|SIP/2.0/UDP _", "|SIP/2.0/UDP [::1",
        "|SIP/2.0/UDP h:;a", "|SIP/2.0/UDP h : ", "|SIP/2.0/UDP h:x", "| SIP/2.0/UDP h" );
    expectCounts( telsx___SkipViaReceived, "received=1.2.3.4", "RECEIVED \t=\t::1| ;",
                  "rEceived=::ffff:1.2.3.4", "received=1.2.3.4|.5", "received=1::|%1", "|received",
                  "|received=", "|received=h", "|received=[::1]", "|received=1.2.3.256", "|receive=::1",
                  "|receivedx=::1", "| received=::1" );
    expectCounts( telsx___SkipViaParams, "received=::1", "received=[::1]|:", "received=h", "received",
                  "received=1.2.3.256", "receivedx=y|:", "ttl=1", "branch| ;", "|received=", "|receivedx=::1",
                  "|=", "|" );
}

TEST( CompositeSkip, Warning )
{
    expectCounts( telsx___SkipWarnCode, "399", "000| ", "399|x", "|", "|39", "|39 ", "|3999", "|x399" );
    expectCounts( telsx___SkipWarnAgent, "h", "h:5060", "h|:", "h|: 5060", "[::1]:1", "1.2.3.4|/", "foo|_bar",
                  "a|-", "_foo", "-a", "%a", "|", "| h", "|[::1", "|:1" );
    expectCounts( telsx___SkipWarningValue, "399 h \"t\"", "399 \th:1  \"a\\\",\"| , 3", "399 _foo \"\"|;x",
                  "|", "|399", "|399 ", "|399 h", "|399 h ", "|399h \"t\"", "|399 h\"t\"", "|399 h t",
                  "|39 h \"t\"", "|3999 h \"t\"", "|399 foo_bar \"t\"", "|399 h \"t", "| 399 h \"t\"" );
}

TEST( CompositeSkip, ServerAndUserAgent )
{
    expectCounts( telsx___SkipServerVal, "a", "a/1.0", "a / 1|  ", "a/1|/2", "(c) |x", "\t((c))", "a| (c)",
                  "|", "|a/", "|a/ ", "|a/(c)", "|/1", "|(c", "| a" );
    for ( rt::Skipper skip : { telsx___SkipServer, telsx___SkipUserAgent } )
        expectCounts( skip, "a", "a/1.0 b\tc / 2", "(c)", "(a(b)c)  ", "a/1.0 (c)", "a/1.0 (c) |b/2.0",
                      "(c)|(d)", "a|(c)", "a|;b", "a/1|,", "|", "| ", "| a", "|a ", "|a/1.0 \t", "|a é",
                      "|a b/", "|a (c", "|a/" );
}

TEST( CompositeSkip, NamesOfDates )
{
    auto expectNames = []( auto *skip, int64_t first, std::string_view names )
    {
        for ( std::size_t at = 0; at < names.size(); at += 3, ++first )
        {
            Ref<RT_STRING> name = str( std::string( names.substr( at, 3 ) ) + "x" );
            const RT_CHAR *chs = rtStringBacking( name.get() );
            int64_t index = -7;
            EXPECT_EQ( 0, skip( chs, 2, &index ) );
            EXPECT_EQ( 0, skip( chs + 1, 3, &index ) );
            EXPECT_EQ( -7, index ) << "untouched without a match";
            EXPECT_EQ( 3, skip( chs, 4, &index ) );
            EXPECT_EQ( first, index ) << utf8( name );
            EXPECT_EQ( 3, skip( chs, 3, nullptr ) );
            rtStringToUpper( name.address() );
            EXPECT_EQ( 0, skip( rtStringBacking( name.get() ), 4, nullptr ) );
        }
    };
    expectNames( telsx___SkipMonth, 1, "JanFebMarAprMayJunJulAugSepOctNovDec" );
    expectNames( telsx___SkipWkday, 0, "MonTueWedThuFriSatSun" );
    EXPECT_EQ( 0, telsx___SkipMonth( nullptr, 0, nullptr ) );
}

TEST( CompositeSkip, ArgumentsAreAsserted )
{
    const RT_CHAR ch = 'a';
    for ( rt::Skipper skip : { telsx___SkipGenericParams, telsx___SkipContact, telsx___SkipVia,
                               telsx___SkipServer, telsx___SkipWarningValue, telsx___SkipAccept } )
    {
        EXPECT_EQ( 0, skip( nullptr, 0 ) );
        EXPECT_ABORT( skip( &ch, -1 ), "length >= 0" );
        EXPECT_ABORT( skip( nullptr, 1 ), "chs || length == 0" );
    }
    EXPECT_ABORT( telsx___SkipMonth( &ch, -1, nullptr ), "length >= 0" );
    EXPECT_ABORT( telsx___SkipWkday( nullptr, 1, nullptr ), "chs || length == 0" );
}
