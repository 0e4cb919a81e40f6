// What messages hold in memory: prints a row of a table for each file of a message, with its bytes on the wire, the
// bytes of all blocks that it holds decoded, and the bytes that a Call-Id and a From from it hold once the message is
// released, next to the number of characters of their text:
//
//     memory bench/messages/*.sip
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "heap.hpp"
#include "rt/rt_frame.hpp"
#include "telsx/telsx.h"

using rt::adopt;
using rt::Ref;

static Ref<TELSX_MESSAGE> decode( const std::string &wire )
{
    auto bytes = adopt( rtBufferCreateFromBytesCopy( wire.data(), static_cast<int64_t>( wire.size() ) ) );
    return adopt( telsxMessageTryDecode( bytes.get() ) );
}

// "Held bytes / characters of text" of a typed header.
template <class HEADER>
static std::string kept( const std::string &wire, HEADER ( *tryDecode )( TELSX_MESSAGE ),
                         RT_STRING ( *toString )( HEADER ) )
{
    auto make = [&] { return adopt( tryDecode( decode( wire ).get() ) ); };
    int64_t length = rtStringLength( adopt( toString( make().get() ) ).get() );
    return std::to_string( heap::heldBy( make ) ) + " / " + std::to_string( length );
}

int main( int argc, char **argv )
{
    rtModuleStart( telsxModule() );
    std::puts( "| message | on the wire | decoded | for a byte | Call-Id kept / text | From kept / text |\n"
               "|---|---:|---:|---:|---:|---:|" );
    for ( int i = 1; i < argc; ++i )
    {
        std::ifstream file( argv[i], std::ios::binary );
        std::string wire( ( std::istreambuf_iterator<char>( file ) ), {} );
        int64_t held = heap::heldBy( [&] { return decode( wire ); } );
        std::printf( "| %s | %zu | %lld | %.1f | %s | %s |\n",
                     std::filesystem::path( argv[i] ).stem().c_str(), wire.size(),
                     static_cast<long long>( held ),
                     static_cast<double>( held ) / static_cast<double>( wire.size() ),
                     kept( wire, telsxHeaderCallIdTryDecodeFromMessage, telsxHeaderCallIdToString ).c_str(),
                     kept( wire, telsxHeaderFromTryDecodeFromMessage, telsxHeaderFromToString ).c_str() );
    }
    rtModuleStop( telsxModule() );
}
