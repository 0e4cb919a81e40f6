// From the bytes of a datagram, or of a head, to a fragment.
#include "telsx_support.hpp"

using namespace support;

namespace
{

struct Case
{
    std::string wire, expected; // as dump writes it
};

} // namespace

// Decodes from a block of exactly the text's size.
static std::string decoded( std::string_view wire ) { return dump( fragment( wire ).get() ); }

TEST( Decoding, TellsTheStartLine )
{
    const Case cases[] = {
        // None
        { "", "-" },
        { "\r\n\r\n", "-" },
        { "G: 1\r\nH: 2\r\n\r\n", "- | G: <1> | H: <2>" },
        { "To: a\r\n\r\n", "- | To: <a>" },
        { "Via: SIP/2.0/UDP x\r\n\r\n", "- | Via: <SIP/2.0/UDP x>" },
        { "G :b\r\n\r\n", "- | G: <b>" },
        // Status lines
        { "SIP/2.0 200 OK", "SIP/2.0 200 <OK>" },
        { "SIP/2.0 200 \r\n\r\n", "SIP/2.0 200 <>" },
        { "SIP/2.0 200 All  is well \r\n\r\n", "SIP/2.0 200 <All  is well >" },
        { "sip/2.0A 100 a%22%c3%A4%zz%\r\n\r\n", "SIP/2.0a 100 <a\"Ã¤%zz%>" },
        { "SIP\t/\t2.0 999 \xC3\xA4:\r\n\r\n", "SIP/2.0 999 <ä:>" },
        { "ABC/1 00200 x\r\n\r\n", "ABC/1 200 <x>" },
        // Request lines
        { "invite sip:b abc / 1X\r\n\r\n", "invite sip:b ABC/1x" },
        { "!%'*+-._`~ tel:+1 SIP/2.0\r\n\r\n", "!%'*+-._`~ tel:+1 SIP/2.0" },
        { "A sip:%C3%A4@xn--4ca.de;x=[::1]?y=%41 SIP/2.0\r\n\r\n", "A sip:ä@ä.de;x=[::1]?y=%41 SIP/2.0" },
    };
    for ( auto &[wire, expected] : cases )
        EXPECT_EQ( expected, decoded( wire ) ) << wire;
    // What looks like a start line must be valid; anything else must be a header.
    for ( std::string_view wire :
          list( "A\tb:c SIP/2.0\r\n\r\n", "no header\r\n\r\n", "SIP/2.0 1000 Odd\r\n\r\n",
                "SIP/2.0 abc\r\n\r\n", "SIP/2.0 200x OK\r\n\r\n", "SIP/2.0 +200 OK\r\n\r\n",
                "SIP/2.0 18446744073709551816 OK\r\n\r\n", "SIP/2.0  200 OK\r\n\r\n", "SIP/2.0 \r\n\r\n",
                "SIP/2.0\r\n\r\n", " SIP/2.0 200 OK\r\n\r\n", "INVITE sip:b\r\n\r\n",
                "INVITE sip:b  SIP/2.0\r\n\r\n", "INVITE sip:b SIP/2.0 \r\n\r\n",
                "INVITE sip:b SIP/2.0 x\r\n\r\n", "INVITE sip:b SIP\r\n\r\n", "INVITE b SIP/2.0\r\n\r\n",

                "Subject : good news\r\n\r\n" ) )
        EXPECT_EQ( "(null)", decoded( wire ) ) << wire;
}

TEST( Decoding, FilesHeadersUnderTheirNames )
{
    const Case cases[] = {
        // after a start line, before a blank line
        { "G: \t ", "G: <>" },
        { "C~eq:a", "C~eq: <a>" },
        { "G \t:\t a b \t", "G: <a b>" },
        { "G:a:b: c", "G: <a:b: c>" },
        { "Via: a\r\nTo: b\r\nv: c, d\r\nVIA:", "Via: <a> <c, d> <> | To: <b>" },
        { "G: \xC3\xA4\xF0\x9F\x98\x80", "G: <ä😀>" },
        // Line ends are CR LF, and nothing else.
        { "G: a\nH: b\r", "G: <a\nH: b\r>" },
        { "G: a\r\r\nH: \n", "G: <a\r> | H: <\n>" },
        { std::string( "G: \0", 4 ), std::string( "G: <\0>", 6 ) },
        // Folds
        { "Subject: a\r\n b\r\n\tc", "Subject: <a b c>" },
        { "G: a  \r\n \t  b  \r\nH: c", "G: <a b> | H: <c>" },
        { "G:\r\n a", "G: <a>" },
        { "G: a\r\n ", "G: <a>" },
        { "G: a\r\n \t\r\n b", "G: <a b>" },
        { "G\r\n : a", "G: <a>" },
        { "G: a\r\n H: b", "G: <a H: b>" },
        { "G: a\r\n b\r\nH: c\r\n d\r\nG: e", "G: <a b> <e> | H: <c d>" },
        { "  \r\n\tG: a", "G: <a>" },
    };
    for ( auto &[wire, expected] : cases )
        EXPECT_EQ( "SIP/2.0 200 <> | " + expected, decoded( "SIP/2.0 200\r\n" + wire + "\r\n\r\n" ) ) << wire;
    for ( std::string_view bad : list( "G\r\n H: a", "G", ":a", " : a", "G: a\r\nbad line\r\nH: b", "G H: a",
                                       "G/H: a", "\xC3\xA4: a", "G: \xC3", "G: \xFF", "G: \xED\xA0\x80" ) )
        EXPECT_EQ( "(null)", decoded( "SIP/2.0 200\r\n" + std::string( bad ) + "\r\n\r\n" ) ) << bad;
}

TEST( Decoding, CutsTheBody )
{
    const Case cases[] = {
        { "\r\n", "" },
        { "\r\n\xFF\r\n\r\n", " | body <\xFF\r\n\r\n>" },
        { "l: 0\r\n\r\nabcdefg", " | Content-Length: <0>" },
        { "l: 5\r\n\r\nabcde", " | Content-Length: <5> | body <abcde>" },
        { "l: 005\r\n\r\nabcdefg", " | Content-Length: <005> | body <abcde>" },
        { "l: x\r\nContent-length: 2\r\n\r\nabc", " | Content-Length: <x> <2> | body <ab>" },
        { "l: 0", " | Content-Length: <0>" },
        { "l: 1 \t\r\n\r\nabc", " | Content-Length: <1> | body <a>" },
    };
    for ( auto &[wire, expected] : cases )
        EXPECT_EQ( "A b:c D/1" + expected, decoded( "A b:c D/1\r\n" + wire ) ) << wire;
    // Without a blank line everything is head, and must be text.
    EXPECT_EQ( "(null)", decoded( "A b:c D/1\r\nG: a\r\n\xFF" ) );
    EXPECT_EQ( "- | body <a>", decoded( "\r\n\r\na" ) );
    for ( std::string bad :
          { "l: 5\r\n\r\nabc", "l: 5\r\n\r\n", "l: 5", "l: x\r\n\r\nabc", "l:\r\n\r\nabc", "l: -1\r\n\r\nabc",
            "l: +1\r\n\r\nabc", "l: 1;x\r\n\r\nabc", "l: 1, 1\r\n\r\nabc", "l: 2\r\nl: x\r\n\r\nabc",
            "l: 9223372036854775807\r\n\r\nabc", "l: 9223372036854775808\r\n\r\nabc",
            "l: 18446744073709551617\r\n\r\nabc" } )
        EXPECT_EQ( "(null)", decoded( "A b:c D/1\r\n" + std::string( bad ) ) ) << bad;
}

TEST( Decoding, OfAHeadAloneTellsContentLength )
{
    struct
    {
        const char *head, *expected;
        int64_t contentLength;
        const char *expectedUnasked;
    } cases[] = {
        { "A b:c D/1\r\n", "A b:c D/1", -1, "A b:c D/1" },
        { "l: 7\r\n", "- | Content-Length: <7>", 7, "- | Content-Length: <7>" },
        { "l: 7", "- | Content-Length: <7>", 7, "- | Content-Length: <7>" },
        { "l: 7\r\nl: 0\r\n", "- | Content-Length: <7> <0>", 0, "- | Content-Length: <7> <0>" },
        { "l: x\r\n", "(null)", -1, "- | Content-Length: <x>" },
        { "l: 7\r\nbad", "(null)", -1, "(null)" },
        // A blank line does not end a head that is decoded by itself.
        { "G: a\r\n\r\n\r\nH: b\r\n", "- | G: <a> | H: <b>", -1, "- | G: <a> | H: <b>" },
        { "G: a\r\n\r\n h: c\r\n", "- | G: <a> | H: <c>", -1, "- | G: <a> | H: <c>" },
    };
    for ( auto &[head, expected, contentLength, expectedUnasked] : cases )
    {
        int64_t found = 99;
        Ref<RT_BUFFER> buf = buffer( head );
        EXPECT_EQ( expected,
                   dump( adopt( telsxMessageFragmentTryDecodeHeaders( buf.get(), &found ) ).get() ) );
        EXPECT_EQ( contentLength, found ) << head;
        EXPECT_EQ( expectedUnasked,
                   dump( adopt( telsxMessageFragmentTryDecodeHeaders( buf.get(), nullptr ) ).get() ) );
    }
    EXPECT_ABORT( telsxMessageTryDecode( nullptr ), "buf" );
}

TEST( Decoding, KeepsLoneLineEndsAndTellsOfThem )
{
    const std::pair<const char *, bool> rows[] = {
        { "G: a\r\n b\r\nV: c\r\nv: d\r\n\r\n\n", false },
        { "G: a\rb\r\n", true },
        { "G: a\nb\r\n", true },
        { "G: a\r\r\n", true },
        { "V: a\r\nv: b\r\nv: c\nd\r\n", true },
    };
    for ( auto &[head, expected] : rows )
        EXPECT_EQ( expected, telsxMessageFragmentHasLoneLineEnds( fragment( head ).get() ) != 0 ) << head;

    // What counts is the text that would be written.
    Ref<TELSX_MESSAGE> msg = message( "A b:c D/1\r\nV: a\r\nv: b\nc\r\n\r\n" );
    auto hasThem = [&msg] { return telsxMessageHasLoneLineEnds( msg.get() ) != 0; };
    adopt( telsxMessageHeaderCstr( msg.get(), "V", -1 ) );
    EXPECT_TRUE( hasThem() );
    telsxMessageSetHeader( msg.address(), header( "V", { "a" } ).get() );
    EXPECT_FALSE( hasThem() );
    telsxMessageSetHeader( msg.address(), header( "G", { "a", "b\r" } ).get() );
    EXPECT_TRUE( hasThem() );
    telsxMessageDelHeaderCstr( msg.address(), "g", -1 );
    EXPECT_FALSE( hasThem() );
    EXPECT_ABORT( telsxMessageHasLoneLineEnds( nullptr ), "msg" );
    EXPECT_ABORT( telsxMessageFragmentHasLoneLineEnds( nullptr ), "frag" );
}

// Up to some length lines are read in place, longer ones as strings.
TEST( Decoding, ReadsTypedHeadersOfAnyLength )
{
    for ( int64_t length : { 1, 15, 16, 17, 230, 240, 241, 242, 256, 257, 5000 } )
        for ( const char *last : { "z", "ü" } )
        {
            std::string text = std::string( static_cast<std::size_t>( length - 1 ), 'x' ) + last;
            auto msg = message( "OPTIONS sip:a SIP/2.0\r\nFrom: \"" + text + "\" <sip:a>;tag=t\r\n\r\n" );
            auto from = adopt( telsxHeaderFromTryDecodeFromMessage( msg.get() ) );
            ASSERT_TRUE( from ) << text;
            EXPECT_EQ( text, utf8( telsxHeaderFromDisplayName( from.get() ) ) );
            EXPECT_EQ( "t", utf8( telsxHeaderFromTag( from.get() ) ) );
        }
}
