// From a fragment to bytes.
#include "telsx_support.hpp"

using namespace support;

TEST( Encoding, WritesTheNormalForm )
{
    std::pair<std::string, std::string> cases[] = {
        { "", "Content-Length: 0\r\n\r\n" },
        { "\r\n\r\nabc", "Content-Length: 3\r\n\r\nabc" },
        { "SIP/2.0 00100 A \"b\" 5%25%0D%0A%41\xC3\xA4\r\n\r\n",
          "SIP/2.0 100 A %22b%22 5%25%0D%0AA\xC3\xA4\r\nContent-Length: 0\r\n\r\n" },
        // Lines of one name are together; Content-Length keeps its place and gets the true value.
        { "v: a\r\nG:\r\nl: 99\r\nl: 2\r\nVIA:  b\r\n c \r\n\r\nabcd",
          "Via: a\r\nVia: b c\r\nG: \r\nContent-Length: 2\r\n\r\nab" },
        { "G: a\r\r\n\r\n\xFF", "G: a\r\r\nContent-Length: 1\r\n\r\n\xFF" },
    };
    for ( auto &[wire, expected] : cases )
    {
        Ref<TELSX_MESSAGE_FRAGMENT> frag = fragment( wire );
        ASSERT_TRUE( frag ) << wire;
        std::string before = dump( frag.get() );
        EXPECT_EQ( expected, encoded( frag.get() ) );
        EXPECT_EQ( before, dump( frag.get() ) );
        EXPECT_EQ( expected, encoded( fragment( expected ).get() ) );
    }
}

TEST( Encoding, WritesWhatCallersSet )
{
    Ref<TELSX_MESSAGE_FRAGMENT> frag = adopt( telsxMessageFragmentCreate() );
    telsxMessageFragmentSetHeader( frag.address(), header( "l", {} ).get() );
    telsxMessageFragmentSetHeader( frag.address(), header( "v", { "", " a " } ).get() );
    telsxMessageFragmentSetHeader( frag.address(), header( "t", {} ).get() );
    EXPECT_EQ( "Content-Length: 0\r\nVia: \r\nVia:  a \r\n\r\n", encoded( frag.get() ) );
    EXPECT_EQ( "- | Content-Length: | Via: <> < a > | To:", dump( frag.get() ) );

    Ref<TELSX_VERSION> version = adopt( telsxVersionCreateSip20() );
    telsxMessageFragmentDelHeaderCstr( frag.address(), "v", -1 );
    telsxMessageFragmentSetResponse( frag.address(), version.get(), 799 );
    telsxMessageFragmentSetBody( frag.address(), buffer( "" ).get() );
    EXPECT_EQ( "SIP/2.0 799 Unknown reason %22799%22\r\nContent-Length: 0\r\n\r\n", encoded( frag.get() ) );
    // What is not a character becomes U+FFFD.
    RT_CHAR surrogate = 0xD800;
    Ref<RT_STRING> odd = adopt( rtStringCreateFromCharsCopy( &surrogate, 1 ) );
    telsxMessageFragmentSetResponseReasonPhrase( frag.address(), odd.get() );
    EXPECT_EQ( "SIP/2.0 799 \uFFFD\r\nContent-Length: 0\r\n\r\n", encoded( frag.get() ) );
}
