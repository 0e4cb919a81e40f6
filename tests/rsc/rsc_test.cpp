// IRIs and URIs.
#include <algorithm>
#include <random>

#include "rsc/rsc.h"
#include "support/support.hpp"

using namespace support;

static void expectStops( rt::Skipper skip, const std::string &table )
{
    for ( const std::string &text : words( table ) )
        expectStop( skip, text );
}

static Ref<RT_STRING> toUri( const Ref<RT_STRING> &iri ) { return adopt( rscTryConvertToUri( iri.get() ) ); }
static Ref<RT_STRING> fromUri( const Ref<RT_STRING> &uri )
{
    return adopt( rscTryConvertFromUri( uri.get() ) );
}
static bool iriOk( const Ref<RT_STRING> &text )
{
    return rscGensValidatePart( RSC_GENS_PART_IRI, text.get() );
}
static bool isAscii( const std::string &text )
{
    return std::all_of( text.begin(), text.end(), []( char ch ) { return ch > 0; } );
}

TEST( RscIri, TheLongestIriIsMeasured )
{
    expectStops( rsc___SkipIri,
                 "sip:alice@example.com;transport=tcp?a=b#c| a:| A+b-c.9:x| sip:[2001:db8::1]:5060|>x "
                 "tel:+1-2;x=[]| |1a:x |+:x |:x |sip |s_p:x |ä:x | sip:a|\tb sip:a|\"b sip:a|\\ "
                 "sip:a|%4 sip:a|%4g sip:a|% sip:a%4fb| x:a#b|#c x:a#b?c?d| x:ä€𐀀| x:|\u0080 "
                 "x:|\uFDD0 x:|\uFFFE x:|\U0001FFFE x:|\U000E0001" );
    // Private characters are allowed only in the query.
    expectStops( rsc___SkipIri, "x:|\uE000 x:?\uE000\U00100000?\uF8FF#|\uE000 x:#?|\uE000 x:?|\U0010FFFE" );
    // Up to a given character.
    expectStops( []( const RT_CHAR *chs, int64_t length ) { return rsc___SkipIriUntil( chs, length, ',' ); },
                 "sip:a;b|,c sip:a-|,-,b x:ä|, x:|, |,x:" );
    expectStops( []( const RT_CHAR *chs, int64_t length ) { return rsc___SkipIriUntil( chs, length, ';' ); },
                 "sip:a,b|;c sip:a-|,;-,b sip:a,si|;p:b" );
    // A comma ends an IRI if an address with one of these schemes follows it, or nothing of the IRI.
    expectStops(
        rsc___SkipIri,
        "sip:a@b|,sip:c@d sip:a|,SiPs:b x:|,TEL: sip:a,si:b sip:a,sipss:b sip:a,tel sip:a,,x,tel|,,tel:1 "
        "sip:a|, sip:a|,,, sip:a|,,>b x:|, sip:a,b@c| sip:a;x=1,2|> http://h/a,b |,sip:a" );
    EXPECT_TRUE( iriOk( str( "sip:ä@b" ) ) );
    EXPECT_FALSE( iriOk( str( "sip:a b" ) ) );
    for ( const char *bad : { "", "sip:a,", "sip:a,tel:b" } )
        EXPECT_FALSE( iriOk( str( bad ) ) ) << bad;
}

TEST( RscIri, PortsAndAddressesAreMeasured )
{
    expectStops( rsc___SkipPort, "5060|;x 99999999999999999999999| |:5060 |" );
    expectStops( rsc___SkipIpV4Address, "1.2.3.4|; |::1" );
    expectStops( rsc___SkipIpV6Address, "::1|] |1.2.3.4" );
}

TEST( RscIri, UrisAndIrisConvert )
{
    struct
    {
        const char *uri, *iri;
    } const table[] = {
        { "sip:%C3%A4@xn--mnchen-3ya.de:5060;x=%E2%82%AC?h=%F0%90%80%80", "sip:ä@münchen.de:5060;x=€?h=𐀀" },
        { "SIPS:xn--4ca.DE", "SIPS:ä.DE" },
        { "sip:a/b?c;d:%C3%A4@xn--4ca;e", "sip:a/b?c;d:ä@ä;e" },
        { "http://u:p@xn--4ca:80/xn--4ca/%C3%A4?%C3%A4#%C3%A4", "http://u:p@ä:80/xn--4ca/ä?ä#ä" },
        { "http://xn--4ca?@xn--4ca", "http://ä?@xn--4ca" },
        { "http:xn--4ca", "http:xn--4ca" }, // no authority, no host
        { "mailto:%C3%A4@xn--4ca", "mailto:ä@xn--4ca" },
        { "sip://xn--4ca/%C3%A4", "sip://xn--4ca/ä" },
        { "sip:[2001:db8::1]:5060;%C3%A4", "sip:[2001:db8::1]:5060;ä" },
        { "sip:[xn--4ca]", "sip:[xn--4ca]" },
        // ASCII stays escaped, as do bytes that are not UTF-8, characters that an IRI may not have there, and bidi
        // controls.
        { "sip:%41%20%2F%25%40@a", "sip:%41%20%2F%25%40@a" },
        { "x:%C3%C3%A4%A4%C3", "x:%C3ä%A4%C3" },
        { "x:%C0%AF%E0%82%A0%ED%A0%80%F4%90%80%80%F8%88%80%80%80",
          "x:%C0%AF%E0%82%A0%ED%A0%80%F4%90%80%80%F8%88%80%80%80" },
        { "x:%C2%80%EF%BF%BE%EE%80%80?%EE%80%80#%EE%80%80", "x:%C2%80%EF%BF%BE%EE%80%80?\uE000#%EE%80%80" },
        { "x:%E2%80%8E%E2%80%8F%E2%80%AA%E2%80%AE%E2%80%AF", "x:%E2%80%8E%E2%80%8F%E2%80%AA%E2%80%AE\u202F" },
        // An ASCII host keeps its escapes; what is not a host is text.
        { "sip:m%C3%BCnchen.de", "sip:m%C3%BCnchen.de" },
        { "sip:xn--4ca.%C3%A4;%C3%A4", "sip:ä.%C3%A4;ä" },
        { "sip:_%C3%A4.xn--4ca", "sip:_ä.xn--4ca" },
        { "sip:%C3%A4%C3%A4_%EF%BC%9A", "sip:ää_：" }
    };
    for ( auto &row : table )
    {
        EXPECT_EQ( row.iri, utf8( fromUri( str( row.uri ) ) ) );
        EXPECT_EQ( row.uri, utf8( toUri( str( row.iri ) ) ) );
    }
    EXPECT_EQ( "sip:ä.b", utf8( fromUri( str( "sip:Ä。b" ) ) ) );
    EXPECT_EQ( "sip:xn--4ca.b", utf8( toUri( str( "sip:Ä。b" ) ) ) );
    EXPECT_EQ( "sip:%C3%A4%EF%BC%9A5060",
               utf8( toUri( str( "sip:ä：5060" ) ) ) ); // no port comes out of a host
    EXPECT_EQ( "sip:%C3%A4%C3%B6", utf8( toUri( str( "sip:ä%C3%B6" ) ) ) );
    EXPECT_EQ( "x:ä", utf8( fromUri( str( "x:%c3%A4" ) ) ) );
    EXPECT_EQ( "x:%E2%80%8Eä", utf8( fromUri( str( "x:\u200E%C3%A4" ) ) ) );
    for ( const char *bad : { "", "sip", "sip:a b", "sip:%4", "<sip:a>", "x:\uE000" } )
    {
        EXPECT_FALSE( toUri( str( bad ) ) ) << bad;
        EXPECT_FALSE( fromUri( str( bad ) ) ) << bad;
    }
}

TEST( RscIri, WhatDoesNotChangeIsShared )
{
    for ( const char *text :
          { "sip:alice@example.com;transport=tcp", "sip:a%20b@[::1]:5060?x=%41", "tel:+1-2" } )
    {
        Ref<RT_STRING> uri = str( text );
        EXPECT_EQ( uri.get(), fromUri( uri ).get() );
        EXPECT_EQ( uri.get(), toUri( uri ).get() );
    }
}

TEST( RscIri, EveryTextKeepsTheLaws )
{
    const char *pieces[] = { "xn--",      "XN--",   "4ca",    "MNCHEN-3YA", "%C3",  "%A4",       "%c3%a4",
                             "%E3%80%82", "ä",      "ß",      "。",         "１",   "：",        "＠",
                             "\u0300",    "\u200E", "\uE000", "[",          "]",    "::1",       "@",
                             ":",         "/",      "//",     "?",          "#",    ";",         ".",
                             "..",        "-",      "_",      "a",          "%2E",  "%E2%80%8E", "％",
                             "♥",         "\u00AD", ",",      "，",         "tel:", "ＴＥＬ" };
    const char *starts[] = { "sip:", "SIPS:a@", "http://", "x:", "sip:" };
    std::mt19937 random( 1 );
    int iris = 0;
    for ( int i = 0; i < 15000; ++i )
    {
        std::string text = starts[random() % std::size( starts )];
        for ( auto count = random() % 8; count > 0; --count )
            text += pieces[random() % std::size( pieces )];
        Ref<RT_STRING> iri = fromUri( str( text ) ), uri = toUri( str( text ) );
        ASSERT_EQ( iriOk( str( text ) ), bool( iri ) ) << text;
        ASSERT_EQ( iriOk( str( text ) ), bool( uri ) ) << text;
        if ( !iri )
            continue;
        ++iris;
        ASSERT_TRUE( isAscii( utf8( uri ) ) ) << text;
        ASSERT_TRUE( iriOk( iri ) ) << text << "\n" << utf8( iri );
        ASSERT_EQ( utf8( iri ), utf8( fromUri( iri ) ) ) << text;
        Ref<RT_STRING> back = toUri( iri );
        ASSERT_TRUE( back && isAscii( utf8( back ) ) ) << text << "\n" << utf8( iri );
        ASSERT_EQ( utf8( iri ), utf8( fromUri( back ) ) ) << text;

        // Converting it to an IRI and back changes nothing else in a URI than the case of letters.
        Ref<RT_STRING> once = toUri( fromUri( uri ) );
        rtStringToLower( uri.address() );
        rtStringToLower( once.address() );
        ASSERT_EQ( utf8( uri ), utf8( once ) ) << text;
    }
    EXPECT_GT( iris, 3000 );
}

TEST( RscIriDeathTest, ContractsAreKept )
{
    EXPECT_ABORT( rscGensValidatePart( 1, str( "a:b" ).get() ), "part == RSC_GENS_PART_IRI" );
    EXPECT_ABORT( rscTryConvertToUri( nullptr ), "iri" );
    EXPECT_ABORT( rsc___SkipIri( nullptr, -1 ), "length >= 0" );
}
