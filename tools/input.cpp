#include "input.hpp"

#include <cerrno>
#include <cstring>

#include <sys/stat.h>

#include "common/message.hpp"

namespace tools
{

void complain( const char *name, const std::string &what )
{
    std::fprintf( stderr, "telsx: %s: %s\n", printable( name ).c_str(), printable( what ).c_str() );
}

void closeFile( std::FILE *file )
{
    if ( file != stdin )
        std::fclose( file );
}

bool readFile( const char *name, const Options &options, const Receive &receive, const Tick &tick )
{
    bool isInput = std::strcmp( name, "-" ) == 0;
    std::FILE *file = isInput ? stdin : std::fopen( name, "rb" );
    struct stat about = {};
    if ( file && fstat( fileno( file ), &about ) == 0 && S_ISDIR( about.st_mode ) )
    {
        closeFile( file );
        errno = EISDIR;
        file = nullptr;
    }
    if ( !file )
    {
        complain( name, std::strerror( errno ) );
        return false;
    }
    static char buffer[1 << 18]; // the usual one holds only a few packets
    if ( !isInput )
        std::setvbuf( file, buffer, _IOFBF, sizeof buffer );
    bool isCaptured = isCapture( file );
    int64_t messages = isCaptured ? readCapture( name, file, options, receive, tick )
                                  : readText( name, file, receive, tick );
    if ( !isCaptured )
        closeFile( file );
    if ( messages == 0 )
        complain( name, "no SIP message in it" );
    return messages > 0;
}

int64_t readText( const char *name, std::FILE *file, const Receive &receive, const Tick &tick )
{
    Cutter cutter( Cutter::Kind::File );
    Place place;
    place.file = name;
    int64_t messages = 0;
    auto cut = [&]( bool atEnd )
    {
        while ( auto found = cutter.next( atEnd ) )
        {
            place.offset = cutter.offset();
            place.line = cutter.line();
            place.column = cutter.column();
            ++messages;
            receive( *found, place );
        }
    };
    char piece[65536];
    while ( std::size_t length = std::fread( piece, 1, sizeof piece, file ) )
    {
        cutter.add( { piece, length } );
        cut( false );
        if ( cutter.tooLong() )
        {
            complain( name, "a message has more than 1048576 bytes" );
            return -1;
        }
        tick( file );
    }
    if ( std::ferror( file ) )
    {
        complain( name, std::strerror( errno ) );
        return -1;
    }
    cut( true );
    return messages;
}

} // namespace tools
