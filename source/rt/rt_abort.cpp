// The end of a process that broke a contract. It has a file of its own so that no compiler binds a call to this
// definition when the program has another one.
#include <cstdio>
#include <cstdlib>

#include "rt/rt_object.h"

void rt___Abort( const char *message, const char *file, int64_t line, const char *expression )
{
    const char *between = message ? ": " : "";
    std::fprintf( stderr, "%s:%lld: %s%s%s\n", file, static_cast<long long>( line ), message ? message : "",
                  between, expression );
    std::abort();
}
