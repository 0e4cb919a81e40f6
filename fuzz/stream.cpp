// However a stream is cut, the decoder returns the same messages, and fails or succeeds alike.
//
// The first four bytes of the input control the cutting: the lower six bits of each are the length of a piece, in turn.
// So "AAAA" cuts the stream into single bytes, and "@" is an empty piece.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "fuzz.hpp"
#include "mutator.hpp"

using namespace fuzz;

namespace
{

using Decoder = Ref<TELSX_MESSAGE_STREAM_DECODER>;

constexpr std::size_t turns = 4;
using Cutting = std::array<std::size_t, turns>;
constexpr Cutting uncut = { std::string_view::npos, 0, 0, 0 };

struct Outcome
{
    std::vector<Ref<RT_BUFFER>> messages; // encoded
    bool error = false;
    int64_t left = 0; // bytes that belong to no message

    bool operator==( const Outcome &other ) const
    {
        return messages == other.messages && error == other.error && ( error || left == other.left );
    }
};

// Writes the piece of the stream at the offset by one of the five functions; all pass the same bytes to the decoder.
bool write( const Decoder &decoder, std::string_view stream, std::size_t offset, std::size_t length,
            std::size_t function )
{
    std::string_view piece = stream.substr( offset, length );
    int64_t count = static_cast<int64_t>( length );
    switch ( function )
    {
        case 0: return telsxMessageStreamDecoderWrite( decoder.get(), buffer( piece ).get() );
        case 1:
            return telsxMessageStreamDecoderWriteLeading( decoder.get(),
                                                          buffer( stream.substr( offset ) ).get(), count );
        case 2:
            return telsxMessageStreamDecoderWriteTrailing(
                decoder.get(), buffer( stream.substr( 0, offset + length ) ).get(), count );
        case 3:
            return telsxMessageStreamDecoderWriteInner( decoder.get(), buffer( stream ).get(),
                                                        static_cast<int64_t>( offset ), count );
        default:
        {
            std::string around( piece );
            around.insert( length / 2, "not this" );
            return telsxMessageStreamDecoderWriteOuter( decoder.get(), buffer( around ).get(), count / 2, 8 );
        }
    }
}

void drain( const Decoder &decoder, Outcome &outcome )
{
    for ( ;; )
    {
        int64_t held = telsxMessageStreamDecoderLength( decoder.get() );
        Ref<TELSX_MESSAGE> message = adopt( telsxMessageStreamDecoderRead( decoder.get() ) );
        int64_t left = telsxMessageStreamDecoderLength( decoder.get() );
        require( message ? left < held : left <= held, "a message takes its bytes away" );
        if ( !message )
            break;
        outcome.messages.push_back( adopt( telsxMessageEncode( message.get() ) ) );
    }
    outcome.error = telsxMessageStreamDecoderError( decoder.get() );
    outcome.left = telsxMessageStreamDecoderLength( decoder.get() );
}

Outcome decode( std::string_view stream, const Cutting &cutting )
{
    Decoder decoder = adopt( telsxMessageStreamDecoderCreate() );
    Outcome outcome;
    std::size_t offset = 0;
    for ( std::size_t turn = 0; offset < stream.size(); ++turn )
    {
        std::size_t length = std::min( cutting[turn % turns], stream.size() - offset );
        bool accepted = write( decoder, stream, offset, length, turn % 5 );
        require( accepted == !outcome.error, "a write is refused exactly when the stream has failed" );
        require( telsxMessageStreamDecoderLength( decoder.get() )
                     == outcome.left + ( accepted ? static_cast<int64_t>( length ) : 0 ),
                 "the decoder holds what was written and not yet read" );
        drain( decoder, outcome );
        offset += length;
    }
    return outcome;
}

void test( std::string_view input )
{
    Cutting cutting = uncut;
    if ( input.size() >= turns )
    {
        std::transform( input.begin(), input.begin() + turns, cutting.begin(),
                        []( char ch ) { return ch & 0x3F; } );
        input.remove_prefix( turns );
    }
    if ( cutting == Cutting() )
        cutting = uncut;

    Outcome whole = decode( input, uncut );
    require( decode( input, cutting ) == whole, "the cutting makes no difference" );

    std::string encoded;
    for ( const Ref<RT_BUFFER> &message : whole.messages )
        encoded += bytes( message );
    Outcome again = decode( encoded, cutting );
    require( again.messages == whole.messages && !again.error && again.left == 0,
             "messages that are encoded one after another are a stream of them" );
}

} // namespace

const std::size_t fuzz::messageOffset = turns;

int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size )
{
    return run( [&] { test( { reinterpret_cast<const char *>( data ), size } ); } );
}
