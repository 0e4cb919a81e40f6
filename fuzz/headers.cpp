// Every typed header on any lines: the header's name, a line feed, and the lines, each except the last followed by a
// line feed.
#include "headers.hpp"
#include "fuzz.hpp"
#include "mutator.hpp"

using namespace fuzz;

const std::vector<std::string_view> fuzz::names = namesOf( headers::all );

static headers::Raw rawHeader( const headers::Kind &kind, std::string_view lines )
{
    headers::Raw raw = adopt( telsxMessageHeaderCreate( kind.nameString().get() ) );
    while ( !lines.empty() )
    {
        std::size_t end = std::min( lines.find( '\n' ), lines.size() );
        telsxMessageHeaderAppendLine( raw.address(), text( lines.substr( 0, end ) ).get() );
        lines.remove_prefix( std::min( end + 1, lines.size() ) );
    }
    return raw;
}

int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size )
{
    return runNamed( data, size, headers::all,
                     []( const headers::Kind &kind, std::string_view lines )
                     { return headers::broken( kind, rawHeader( kind, lines ) ); } );
}
