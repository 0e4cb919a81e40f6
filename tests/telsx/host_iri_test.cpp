// Hosts and IRIs.
#include "telsx_support.hpp"

using namespace support;

TEST( HostSkip, MeasuresElements )
{
#define SKIPPER( NAME ) #NAME, telsx___Skip##NAME
    struct
    {
        const char *name;
        rt::Skipper skip;
        std::vector<std::pair<const char *, int64_t>> cases;
    } skippers[] = {
        { SKIPPER( DomainLabel ),
          { { "a-b", 3 },
            { "a-", 1 },
            { "a--", 1 },
            { "a--b-", 4 },
            { "-a", 0 },
            { "a%41b", 5 },
            { "a%4", 1 },
            { "a%4g", 1 },
            { "%41", 3 },
            { "%", 0 },
            { "a-%", 1 },
            { "a.b", 1 },
            { "ä", 0 },
            { "a_b", 1 } } },
        { SKIPPER( Hostname ),
          { { "a.b.", 4 },
            { "a..b", 2 },
            { ".a", 0 },
            { "1.2.3.4.5", 9 },
            { "a-.b", 1 },
            { "a.-b", 2 },
            { "a.b:1", 3 },
            { "a b", 1 } } },
        { SKIPPER( IpV4Address ), { { "1.2.3.4", 7 }, { "1.2.3", 0 }, { "1.2.3.256", 0 }, { "a", 0 } } },
        { SKIPPER( IpV6Address ),
          { { "::1]", 3 }, { "2001:db8::1", 11 }, { "[::1]", 0 }, { "::1.2.3.4", 9 } } },
        { SKIPPER( IpV6Reference ),
          { { "[::1]:5", 5 }, { "[::1", 0 }, { "[ ::1]", 0 }, { "[::1 ]", 0 }, { "[]", 0 }, { "::1", 0 } } },
        { SKIPPER( Host ),
          { { "a.b", 3 },
            { "1.2.3.4", 7 },
            { "[::1]", 5 },
            { "[::1", 0 },
            { "ä", 0 },
            { "1.2.3.4.example", 15 } } },
        { SKIPPER( HostPort ),
          { { "a:50x", 4 },
            { "a:", 1 },
            { "a:x", 1 },
            { "a :5", 1 },
            { "a: 5", 1 },
            { "[::1]:5060", 10 },
            { ":5", 0 },
            { "a.:1", 4 } } },
        { SKIPPER( Port ), { { "5060;", 4 }, { "", 0 }, { "x", 0 } } },
        { SKIPPER( Uri ),
          { { "sip:b;x=y?z>", 11 }, { "b", 0 }, { "sip:b c", 5 }, { "sip:%4", 4 }, { "x:ä>", 3 } } },
        { SKIPPER( AddrSpec ),
          { { "sip:b;x=y", 5 },
            { "sip:b>;", 5 },
            { ";sip:b", 0 },
            { "b;x", 0 },
            { "sip:b", 5 },
            { "sip:;", 4 } } },
        { SKIPPER( Uric ),
          { { "/:@%41;?a>", 9 }, { "a%4", 1 }, { "%4g", 0 }, { "[", 0 }, { "a ", 1 }, { "ä", 0 } } },
    };
#undef SKIPPER
    for ( auto &[name, skip, cases] : skippers )
    {
        EXPECT_EQ( 0, skip( nullptr, 0 ) ) << name;
        for ( auto &[text, count] : cases )
            EXPECT_EQ( count, applied( skip, text ) ) << name << " on " << text;
    }
    EXPECT_ABORT( telsx___SkipDomainLabel( nullptr, 1 ), "chs || length == 0" );
    EXPECT_ABORT( telsx___SkipUric( nullptr, -1 ), "length >= 0" );
}

TEST( Host, GoesOutInAsciiAndComesInInUnicode )
{
    struct
    {
        const char *host, *wire, *again; // again is null where it is the host
    } cases[] = {
        { "Example.COM", "Example.COM", nullptr },
        { "a.", "a.", nullptr },
        { "1.2.3.4", "1.2.3.4", nullptr },
        { "[2001:DB8::1]", "[2001:DB8::1]", nullptr },
        { "a%41", "a%41", nullptr },
        { "bücher.example", "xn--bcher-kva.example", nullptr },
        { "BÜCHER.example", "xn--bcher-kva.example", "bücher.example" },
        { "xn--bcher-kva.a", "xn--bcher-kva.a", "bücher.a" },
        { "xn--a", "xn--a", nullptr },
        { "faß.de", "xn--fa-hia.de", nullptr },
    };
    for ( auto &[host, wire, again] : cases )
    {
        EXPECT_TRUE( telsxHostOk( str( host ).get() ) ) << host;
        EXPECT_EQ( wire, utf8( telsx___HostEncode( str( host ).get() ) ) );
        Ref<RT_STRING> decoded = adopt( applied( telsx___HostTryDecode, wire ) );
        EXPECT_EQ( again ? again : host, utf8( decoded ) );
        EXPECT_TRUE( decoded && telsxHostOk( decoded.get() ) );
    }
    for ( const char *bad :
          { "", " ", "a b", "a..b", ".a", "-a", "a-", "[::1", "[]", "a_b", "a:1", "a/b", "ä b", "ä..b" } )
    {
        EXPECT_FALSE( telsxHostOk( str( bad ).get() ) ) << bad;
        EXPECT_FALSE( adopt( applied( telsx___HostTryDecode, bad ) ) ) << bad;
    }
    EXPECT_FALSE( adopt( applied( telsx___HostTryDecode, "bücher" ) ) );
    EXPECT_ABORT( telsxHostOk( nullptr ), "host" );
    EXPECT_ABORT( telsx___HostEncode( str( "a b" ).get() ),
                  "length && length == telsx___SkipHost( rtStringBacking( result ), length )" );
    EXPECT_ABORT( telsx___HostTryDecode( nullptr, 1 ), "chs || length == 0" );
}

TEST( Iri, IsOneAllThrough )
{
    for ( const char *iri :
          { "sip:b", "sips:ä@ü.de;a=b?c=%41", "tel:+1", "http://[::1]/x#y", "urn:service:sos" } )
        EXPECT_TRUE( telsxIriOk( str( iri ).get() ) ) << iri;
    for ( std::string_view bad : list( "", "b", ":", "sip:a b", "<sip:b>", "sip:%4", "sip:b\r\n", "1:a" ) )
        EXPECT_FALSE( telsxIriOk( str( bad ).get() ) ) << bad;
    EXPECT_ABORT( telsxIriOk( nullptr ), "iri" );
}
