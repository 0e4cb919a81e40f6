// Starting and stopping modules.
#include "rt/rt_module.h"

#include <mutex>

#include "rt/rt_memory.hpp"

// One started module, in a list of them all.
struct Started
{
    RT_OBJ module;
    int64_t starts;
    Started *next;
};

static constinit std::mutex mutex;
static constinit Started *first = nullptr;

static const RT_MODULE *asModule( RT_OBJ module ) { return reinterpret_cast<const RT_MODULE *>( module ); }

// The link that leads to the module, or to null at the end of the list.
static Started **find( RT_OBJ module )
{
    Started **link = &first;
    while ( *link && ( *link )->module != module )
        link = &( *link )->next;
    return link;
}

RT_BOOL rtModuleStart( RT_OBJ module )
{
    RT_ASSERT( module );
    std::lock_guard lock( mutex );
    if ( Started *started = *find( module ) )
    {
        ++started->starts;
        return 1;
    }
    if ( !asModule( module )->startup() )
        return 0;
    auto *started = rt::allocate<Started>( 1 );
    *started = { module, 1, first };
    first = started;
    return 1;
}

void rtModuleStop( RT_OBJ module )
{
    RT_ASSERT( module );
    std::lock_guard lock( mutex );
    Started **link = find( module );
    Started *started = *link;
    RT_ASSERT( started );
    if ( --started->starts == 0 )
    {
        *link = started->next;
        std::free( started );
        asModule( module )->shutdown();
    }
}

const RT_MODULE_RECORD *rtModuleRecord( RT_OBJ module )
{
    RT_ASSERT( module );
    return asModule( module )->record;
}
