// Starting and stopping modules.
#include "rt/rt_module.h"

#include <mutex>

#include "rt/rt_memory.hpp"
#include "rt/rt_string.h"

// One started module, in a list of all of them.
struct Started
{
    RT_OBJ module;
    int64_t starts;
    Started *next;
};

static constinit std::mutex mutex;
static constinit Started *first = nullptr;

static const RT_MODULE *asModule( RT_OBJ module ) { return reinterpret_cast<const RT_MODULE *>( module ); }

static RT_STRING toStringFunc( RT_OBJ module )
{
    return rtStringCreateFromCstr( asModule( module )->record->name, -1 );
}

constexpr RT_SORT_ rt___sort_RT_MODULE = {
    RT_STATIC_OBJECT( &rt___sort_RT_SORT ), nullptr, "RT_MODULE", nullptr, nullptr, toStringFunc, {}
};

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

// Tells whether the module was started.
static bool stop( RT_OBJ module )
{
    std::lock_guard lock( mutex );
    Started **link = find( module );
    Started *started = *link;
    if ( started && --started->starts == 0 )
    {
        *link = started->next;
        std::free( started );
        asModule( module )->shutdown();
    }
    return started;
}

void rtModuleStop( RT_OBJ module )
{
    RT_ASSERT( module );
    bool started = stop( module );
    RT_ASSERT( started ); // after the lock is released, for programs that go on after an abort
}

const RT_MODULE_RECORD *rtModuleRecord( RT_OBJ module )
{
    RT_ASSERT( module );
    return asModule( module )->record;
}
