// Captures: whatever the packets are, memory is bounded and no byte is given out twice. A stream yields the same messages
// whatever segments it comes in: cut anywhere, in any order, twice, overlapping.
#include <algorithm>
#include <string>
#include <vector>

#include <pcap/dlt.h>

#include "fuzz.hpp"
#include "reassembly.hpp"

namespace
{

using namespace fuzz;
using tools::Cut;
using tools::Place;
using tools::Reassembly;
using tools::Start;

constexpr int links[] = { DLT_EN10MB, DLT_RAW, DLT_LINUX_SLL, DLT_LINUX_SLL2, DLT_NULL };

// The link, then packets, each after its length in two bytes.
void testPackets( std::string_view input )
{
    if ( input.empty() )
        return;
    int link = links[static_cast<unsigned char>( input[0] ) % std::size( links )];
    std::size_t bytes = 0, given = 0;
    Reassembly reassembly( { 5060 },
                           [&given]( const Cut &cut, const Place & ) { given += cut.bytes.size(); } );
    Place place;
    for ( input.remove_prefix( 1 ); input.size() >= 2; )
    {
        std::size_t length = tools::number16( input, 0 );
        std::string frame(
            input.substr( 2, length ) ); // in a block of its own, so that a sanitizer sees its end
        input.remove_prefix( 2 + frame.size() );
        bytes += frame.size();
        ++place.packet;
        place.seconds = static_cast<int64_t>( length );
        reassembly.add( link, frame, place );
        require( reassembly.memory() <= tools::Streams::maxMemory + tools::Fragments::maxMemory,
                 "it has a bound" );
    }
    reassembly.finish();
    require( given <= bytes, "no byte is given out twice" );
    require( reassembly.memory() == 0 || reassembly.losses().fragments != 0, "streams are released" );
}

std::string network( uint32_t number, int bytes )
{
    std::string result;
    while ( bytes-- )
        result += static_cast<char>( number >> 8 * bytes );
    return result;
}

// A packet of TCP with a part of the stream. SYN counts as a byte before the stream; the numbers soon go round.
constexpr uint32_t fin = 1, syn = 2;
std::string segment( std::string_view stream, std::size_t at, std::size_t length, uint32_t flags )
{
    std::string data( stream.substr( at, length ) );
    uint32_t first = flags == syn ? 0xFFFFFF7F : 0xFFFFFF80;
    std::string result =
        '\x45' + std::string( 1, '\0' ) + network( static_cast<uint32_t>( 40 + data.size() ), 2 );
    result += std::string( 5, '\0' ) + '\6' + std::string( 2, '\0' ) + "\1\2\3\4\5\6\7\10";
    result += network( 4000, 2 ) + network( 5060, 2 ) + network( first + static_cast<uint32_t>( at ), 4 );
    return result + network( 0, 4 ) + '\x50' + network( flags, 1 ) + std::string( 6, '\0' ) + data;
}

// The messages of a stream that comes in these segments, all of it in the end.
std::vector<std::string> cut( std::string_view stream, std::string_view cuts, bool &good )
{
    std::vector<std::string> result;
    Reassembly reassembly( { 5060 },
                           [&]( const Cut &message, const Place & )
                           {
                               good = good && tools::startOf( message.bytes ) == Start::Yes;
                               result.emplace_back( message.bytes );
                           } );
    auto add = [&]( std::size_t at, std::size_t length, uint32_t flags )
    { reassembly.add( DLT_RAW, segment( stream, at, length, flags ), {} ); };
    add( 0, 0, syn );
    for ( ; cuts.size() >= 2; cuts.remove_prefix( 2 ) )
        add( static_cast<unsigned char>( cuts[0] ) * stream.size() / 256,
             static_cast<unsigned char>( cuts[1] ), 0 );
    for ( std::size_t at = 0; at < stream.size(); at += 1000 )
        add( at, 1000, 0 );
    add( stream.size(), 0, fin );
    return result;
}

void testStream( std::string_view input )
{
    constexpr std::size_t cutting = 32;
    if ( input.size() < cutting || input.size() > 30000 )
        return;
    bool good = true;
    std::string_view stream = input.substr( cutting );
    std::vector<std::string> whole = cut( stream, "", good );
    if ( good )
        require( cut( stream, input.substr( 0, cutting ), good ) == whole,
                 "the segments make no difference" );
}

} // namespace

int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size )
{
    std::string_view input( reinterpret_cast<const char *>( data ), size );
    return run(
        [&]
        {
            testPackets( input );
            testStream( input );
        } );
}
