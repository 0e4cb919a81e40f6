// Cuts a byte stream, such as that of a TCP connection, into SIP messages: reads standard input in small
// pieces and shows each message as soon as it is complete.
#include <cerrno>
#include <cstring>

#include <unistd.h>

#include "example.hpp"

int main()
{
    constexpr int64_t maxHeld = 65536; // bytes of an incomplete message; the decoder itself has no limit
    Library library;
    Owned decoder( telsxMessageStreamDecoderCreate() );
    int messages = 0;
    char piece[16];
    ssize_t length;
    while ( ( length = read( STDIN_FILENO, piece, sizeof piece ) ) > 0 )
    {
        Buffer bytes = toBuffer( { piece, static_cast<std::size_t>( length ) } );
        telsxMessageStreamDecoderWrite( decoder.get(), bytes.get() );
        while ( Message message{ telsxMessageStreamDecoderRead( decoder.get() ) } )
        {
            std::cout << "message " << ++messages << '\n';
            show( message );
            std::cout << std::endl;
        }
        // A bad message ends the stream: nothing tells where the next one begins.
        if ( telsxMessageStreamDecoderError( decoder.get() ) )
        {
            std::cerr << "stream: message " << messages + 1 << " is bad or has no Content-Length\n";
            return 1;
        }
        if ( telsxMessageStreamDecoderLength( decoder.get() ) > maxHeld )
        {
            std::cerr << "stream: message " << messages + 1 << " has more than " << maxHeld << " bytes\n";
            return 1;
        }
        if ( !std::cout )
            break;
    }
    if ( !std::cout )
    {
        std::cerr << "stream: standard output can't be written\n";
        return 1;
    }
    if ( length < 0 )
    {
        std::cerr << "stream: " << std::strerror( errno ) << '\n';
        return 1;
    }
    if ( int64_t left = telsxMessageStreamDecoderLength( decoder.get() ) )
    {
        std::cerr << "stream: the input ends inside message " << messages + 1 << "; bytes left over: " << left
                  << '\n';
        return 1;
    }
    return 0;
}
