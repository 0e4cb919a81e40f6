// Decodes one SIP message, shows its contents, raw and typed, and encodes it again.
//
//     decode            the message below
//     decode FILE       a file
//     decode -          standard input
#include <cerrno>
#include <cstring>

#include "example.hpp"
#include "readings.hpp"

namespace
{

// Header names in any case and in compact form, a folded line, a missing Content-Length: the encoder mends them all.
const char sample[] = "INVITE sip:ren%C3%A9e@xn--mhle-0ra.example;transport=tcp SIP/2.0\r\n"
                      "Via: SIP/2.0/TCP gate.example.net;branch=z9hG4bK4b43c2ff8.1\r\n"
                      "v: SIP/2.0/UDP [2001:db8::17]:5060;branch=z9hG4bK87asdks7;rport\r\n"
                      "MAX-FORWARDS: 69\r\n"
                      "f: \"Tomás\" <sip:tomas@example.net>;tag=9fxced76sl\r\n"
                      "t: <sip:ren%C3%A9e@xn--mhle-0ra.example>\r\n"
                      "Call-ID: 2xTb9vxSit55XU7p8@example.net\r\n"
                      "CSeq: 1 INVITE\r\n"
                      "Contact: <sip:tomas@[2001:db8::17]>\r\n"
                      "Subject: The mill,\r\n"
                      "  and who is to bring the flour\r\n"
                      "c: application/sdp\r\n"
                      "\r\n"
                      "v=0\r\n"
                      "o=tomas 2890844526 2890844526 IN IP6 2001:db8::17\r\n"
                      "s=-\r\n"
                      "c=IN IP6 2001:db8::17\r\n"
                      "t=0 0\r\n"
                      "m=audio 49172 RTP/AVP 0\r\n";

// Wire text, line by line.
void showBytes( std::string_view bytes )
{
    while ( !bytes.empty() )
    {
        std::size_t end = bytes.find( "\r\n" );
        std::cout << "  " << printable( bytes.substr( 0, end ) ) << '\n';
        bytes.remove_prefix( end == std::string_view::npos ? bytes.size() : end + 2 );
    }
}

} // namespace

int main( int argc, char **argv )
{
    if ( argc > 2 )
    {
        std::cerr << "usage: decode [FILE | -]\n";
        return 2;
    }
    std::string name = argc == 2 ? argv[1] : "the sample";
    std::string bytes = sample;
    if ( argc == 2 && !readAll( argv[1], bytes ) )
    {
        std::cerr << "decode: " << name << ": " << std::strerror( errno ) << '\n';
        return 1;
    }

    Library library;
    Message message( telsxMessageTryDecode( toBuffer( bytes ).get() ) );
    if ( !message )
    {
        std::cerr << "decode: " << name << ": not a whole SIP message, with CR LF at the end of each line\n";
        return 1;
    }

    TextListing listing( std::cout );
    listRaw( message, listing );
    listTyped( message, listing );
    std::cout << "encoded\n";
    showBytes( toBytes( Buffer( telsxMessageEncode( message.get() ) ) ) );
    std::cout << std::flush;
    return std::cout ? 0 : 1;
}
