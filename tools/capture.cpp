// Captures, as far as libpcap reads them.
#include "input.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <pcap/pcap.h>

#include "reassembly.hpp"

namespace tools
{

namespace
{

// Says on standard error how much of the capture was not checked, if anything.
void tell( const char *name, const Losses &losses )
{
    std::string what;
    auto add = [&what]( int64_t count, const char *one, const char *many )
    {
        if ( count )
            what +=
                ( what.empty() ? "" : ", " ) + std::to_string( count ) + ' ' + ( count == 1 ? one : many );
    };
    add( losses.cutPackets, "packet that was captured only in part",
         "packets that were captured only in part" );
    add( losses.fragments, "datagram with missing fragments", "datagrams with missing fragments" );
    add( losses.holes, "hole in a TCP stream", "holes in TCP streams" );
    add( losses.unfinished, "TCP stream that ends inside a message",
         "TCP streams that end inside a message" );
    add( losses.tooLong, "message of more than 1048576 bytes", "messages of more than 1048576 bytes" );
    if ( !what.empty() )
        complain( name, "left out: " + what );
}

} // namespace

// By the first four bytes: those of pcapng, and of pcap in both orders, with microseconds, with nanoseconds and of an old
// kind with more before each packet. They are put back.
bool isCapture( std::FILE *file )
{
    static const char magics[][5] = { "\x0A\x0D\x0D\x0A", "\xA1\xB2\xC3\xD4", "\xD4\xC3\xB2\xA1",
                                      "\xA1\xB2\x3C\x4D", "\x4D\x3C\xB2\xA1", "\xA1\xB2\xCD\x34",
                                      "\x34\xCD\xB2\xA1" };
    char first[4];
    std::size_t length = std::fread( first, 1, sizeof first, file );
    bool found = false;
    for ( const char *magic : magics )
        found = found || ( length == sizeof first && std::memcmp( first, magic, sizeof first ) == 0 );
    while ( length > 0 )
        std::ungetc( static_cast<unsigned char>( first[--length] ), file );
    return found;
}

int64_t readCapture( const char *name, std::FILE *file, const Options &options, const Receive &receive,
                     const Tick &tick )
{
    char error[PCAP_ERRBUF_SIZE] = "";
    pcap_t *capture = pcap_fopen_offline( file, error );
    if ( !capture )
    {
        complain( name, error );
        closeFile( file );
        return -1;
    }
    int link = pcap_datalink( capture );
    int64_t messages = 0;
    int result = PCAP_ERROR;
    if ( isLinkKnown( link ) )
    {
        Reassembly reassembly( options.ports,
                               [&]( const Cut &cut, const Place &place )
                               {
                                   ++messages;
                                   receive( cut, place );
                               } );
        Place place;
        place.file = name;
        pcap_pkthdr *header = nullptr;
        const unsigned char *bytes = nullptr;
        while ( ( result = pcap_next_ex( capture, &header, &bytes ) ) == 1 )
        {
            ++place.packet;
            // A capture can hold any number; the last second is that of the year 9999.
            place.seconds = std::clamp<int64_t>( header->ts.tv_sec, 0, 253402300799 );
            place.microseconds = std::clamp<int64_t>( header->ts.tv_usec, 0, 999999 );
            reassembly.add( link, { reinterpret_cast<const char *>( bytes ), header->caplen }, place );
            tick( file );
        }
        reassembly.finish();
        tell( name, reassembly.losses() );
        if ( result == PCAP_ERROR )
            complain( name, pcap_geterr( capture ) );
    }
    else
        complain( name, "packets of link type " + std::to_string( link ) + " can't be read" );
    pcap_close( capture );
    return result == PCAP_ERROR ? -1 : messages;
}

} // namespace tools
