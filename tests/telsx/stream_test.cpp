// Messages from a byte stream.
#include "telsx_support.hpp"

using namespace support;

namespace
{

// Writes pieces, reads what comes, and notes after how many bytes it came.
struct Reader
{
    Ref<TELSX_MESSAGE_STREAM_DECODER> decoder = adopt( telsxMessageStreamDecoderCreate() );
    std::vector<std::string> messages;
    std::vector<std::size_t> arrivals;
    std::size_t written = 0;

    bool failed() const { return telsxMessageStreamDecoderError( decoder.get() ); }
    int64_t held() const { return telsxMessageStreamDecoderLength( decoder.get() ); }

    void read( std::string_view piece )
    {
        bool refused = failed();
        int64_t before = held();
        EXPECT_EQ( !refused, telsxMessageStreamDecoderWrite( decoder.get(), buffer( piece ).get() ) != 0 );
        EXPECT_EQ( before + ( refused ? 0 : std::ssize( piece ) ), held() );
        written += piece.size();
        while ( auto message = adopt( telsxMessageStreamDecoderRead( decoder.get() ) ) )
        {
            messages.push_back( dump( message.get() ) );
            arrivals.push_back( written );
        }
    }

    // The messages, "latch" if that is set, and the number of bytes held.
    std::string outcome() const
    {
        std::string text;
        for ( const std::string &message : messages )
            text += message + "\n";
        return text + ( failed() ? "latch" : std::to_string( held() ) );
    }
};

} // namespace

TEST( Stream, GivesTheSameMessagesHoweverItIsCut )
{
    struct
    {
        std::string stream, expected;
        std::vector<std::size_t> arrivals;
    } cases[] = {
        { "", "0", {} },
        { "\r\n\r\n\r", "1", {} },
        { "A b:c D/1\r\nl: 0\r\n\r\n", "A b:c D/1 | Content-Length: <0> | body <>\n0", { 19 } },
        { "A b:c D/1\r\nl: 3\r\n\r\nabc", "A b:c D/1 | Content-Length: <3> | body <abc>\n0", { 22 } },
        { "A b:c D/1\r\nl: 4\r\n\r\nabc", "22", {} },
        { "A b:c D/1\r\nl: 4\r\n", "17", {} },
        { "A b:c D/1\r\nl: 4\r\n\r", "18", {} },
        // Line ends between messages, and a body that looks like one.
        { "\r\nA b:c D/1\r\nl: 4\r\n\r\n\r\n\r\n\r\n\r\nA/1 200 x\r\nl:1\r\n\r\n\xFF\r",
          "A b:c D/1 | Content-Length: <4> | body <\r\n\r\n>\nA/1 200 <x> | Content-Length: <1> | body "
          "<\xFF>\n1",
          { 25, 48 } },
        { "A b:c D/1\r\nl: 1\r\n\r\nxA b:c D/1\r\nl: 1\r\n\r\nyA b:c D/1\r\n",
          "A b:c D/1 | Content-Length: <1> | body <x>\nA b:c D/1 | Content-Length: <1> | body <y>\n11",
          { 20, 40 } },
        { "A b:c D/1\r\nl: 9\r\n v: 9\r\n\r\n", "latch", {} },
        // A head must be valid, have Content-Length, and begin with a start line.
        { "A b:c D/1\r\n\r\n", "latch", {} },
        { "A b:c D/1\r\nl: 0\r\n\r\nA b:c D/1\r\nl: -1\r\n\r\nA b:c D/1\r\nl: 0\r\n\r\n",
          "A b:c D/1 | Content-Length: <0> | body <>\nlatch",
          { 19 } },
        { "l: 0\r\n\r\n", "latch", {} },
        { "A b:c D/1\r\nl: 0\r\n\xFF: a\r\n\r\n", "latch", {} },
        { "\rA b:c D/1\r\nl: 0\r\n\r\n", "latch", {} },
    };
    for ( auto &[stream, expected, arrivals] : cases )
    {
        for ( std::size_t cut = 0; cut <= stream.size(); ++cut )
        {
            Reader reader;
            reader.read( stream.substr( 0, cut ) );
            reader.read( stream.substr( cut ) );
            EXPECT_EQ( expected, reader.outcome() ) << stream << " cut at " << cut;
        }
        Reader reader;
        for ( char byte : stream )
            reader.read( { &byte, 1 } );
        EXPECT_EQ( expected, reader.outcome() ) << stream;
        EXPECT_EQ( arrivals, reader.arrivals ) << stream;
    }
}

TEST( Stream, StaysFailed )
{
    Reader reader;
    reader.read( "bad\r\n\r\n" );
    EXPECT_EQ( "latch", reader.outcome() );
    EXPECT_EQ( 7, reader.held() );
    Ref<RT_BUFFER> more = buffer( "A b:c D/1\r\nl: 0\r\n\r\n" );
    TELSX_MESSAGE_STREAM_DECODER decoder = reader.decoder.get();
    EXPECT_FALSE( telsxMessageStreamDecoderWrite( decoder, more.get() ) );
    EXPECT_FALSE( telsxMessageStreamDecoderWriteLeading( decoder, more.get(), 1 ) );
    EXPECT_FALSE( telsxMessageStreamDecoderWriteTrailing( decoder, more.get(), 1 ) );
    EXPECT_FALSE( telsxMessageStreamDecoderWriteInner( decoder, more.get(), 1, 1 ) );
    EXPECT_FALSE( telsxMessageStreamDecoderWriteOuter( decoder, more.get(), 1, 1 ) );
    EXPECT_FALSE( adopt( telsxMessageStreamDecoderRead( decoder ) ) );
    EXPECT_EQ( 7, reader.held() );
    EXPECT_GE( telsxMessageStreamDecoderSpace( decoder ), 0 );
}

TEST( Stream, AbortsForNull )
{
    EXPECT_ABORT( telsxMessageStreamDecoderRead( nullptr ), "decoder" );
    EXPECT_ABORT( telsxMessageStreamDecoderWrite( nullptr, buffer( "" ).get() ), "decoder" );
}
