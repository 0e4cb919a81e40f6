// Every typed header on any lines.
//
// The first byte picks the kind; behind it stand the lines, each but the last with a line feed behind it. An
// input of one byte is a header without lines.
#include "headers.hpp"
#include "fuzz.hpp"

using namespace fuzz;

static headers::Raw rawHeader( const headers::Kind &kind, std::string_view lines )
{
    headers::Raw raw = adopt( telsxMessageHeaderCreate( adopt( kind.nameString() ).get() ) );
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
    if ( size == 0 )
        return 0;
    return run(
        [&]
        {
            std::string_view lines( reinterpret_cast<const char *>( data ) + 1, size - 1 );
            forPicked( data[0], headers::all,
                       [&]( const headers::Kind &kind )
                       { requireNone( headers::broken( kind, rawHeader( kind, lines ) ), kind.name ); } );
        } );
}
