// The program telsx: what SIP messages in files and captures say, and what is wrong with them.
#include <clocale>
#include <cstdio>

#include "input.hpp"
#include "progress.hpp"
#include "report.hpp"

namespace tools
{

namespace
{

std::unique_ptr<Report> makeReport( const Options &options )
{
    if ( options.command == Options::Command::Decode )
        return options.json ? makeDecodeJson( options ) : makeDecodeText( options );
    if ( options.summary )
        return makeSummary( options );
    return options.json ? makeCheckJson( options ) : makeCheckText( options );
}

int run( const Options &options )
{
    std::unique_ptr<Report> report = makeReport( options );
    bool found = false, read = true;
    Progress progress( options.summary );
    for ( const char *file : options.files )
        read = readFile(
                   file, options,
                   [&]( const Cut &message, const Place &place )
                   { found = report->add( message, place ) || found; },
                   [&]( std::FILE *from ) { progress.tick( from ); } )
               && read;
    progress.clear();
    found = report->finish() || found;
    return !read ? exitTrouble : found ? exitFound : exitGood;
}

} // namespace

} // namespace tools

int main( int argc, char **argv )
{
    std::setlocale( LC_CTYPE, "C.UTF-8" ); // for the widths of characters
    Library library;
    int status = tools::exitGood;
    if ( auto options = tools::readOptions( argc, argv, status ) )
        status = tools::run( *options );
    if ( std::fflush( stdout ) != 0 || std::ferror( stdout ) )
    {
        std::perror( "telsx: standard output" );
        status = tools::exitTrouble;
    }
    return status;
}
