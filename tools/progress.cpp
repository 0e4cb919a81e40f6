#include "progress.hpp"

#include <algorithm>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

namespace tools
{

Progress::Progress( bool wanted ) : shows( wanted && isatty( STDERR_FILENO ) ), last( Clock::now() ) {}

void Progress::tick( std::FILE *file )
{
    constexpr int width = 50;
    if ( !shows || ++calls % 1024 != 0 || Clock::now() - last < std::chrono::milliseconds( 100 ) )
        return;
    last = Clock::now();
    struct stat about = {};
    bool known = fstat( fileno( file ), &about ) == 0 && S_ISREG( about.st_mode ) && about.st_size > 0;
    off_t at = ftello( file );
    if ( !known || at < 0 )
        return;
    double share = std::min( 1.0, static_cast<double>( at ) / static_cast<double>( about.st_size ) );
    auto filled = static_cast<std::size_t>( share * width );
    std::fprintf( stderr, "\r[%s%s] %3d %%", std::string( filled, '#' ).c_str(),
                  std::string( width - filled, ' ' ).c_str(), static_cast<int>( share * 100 ) );
}

void Progress::clear()
{
    if ( shows )
        std::fputs( "\r\x1b[K", stderr );
}

} // namespace tools
