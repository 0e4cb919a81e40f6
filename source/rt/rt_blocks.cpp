// The blocks that objects stand in.
#include "rt/rt_blocks.hpp"

#include <algorithm>

#include "rt/rt_memory.hpp"

RT_THREAD_LOCAL RT_BLOCK_LISTS_ *rt___blockLists = nullptr;

namespace
{

constinit thread_local bool hasEnded = false;

// Frees the lists when the thread ends.
struct AtThreadEnd
{
    bool isSet = false;

    ~AtThreadEnd()
    {
        hasEnded = true;
        for ( rt::BlockList &list : std::exchange( rt___blockLists, nullptr )->of )
            while ( list.first )
                std::free( std::exchange( list.first, *static_cast<void **>( list.first ) ) );
    }
};

// False for a thread that has ended.
bool makeLists()
{
    if ( hasEnded )
        return false;
    static thread_local AtThreadEnd atThreadEnd;
    static thread_local RT_BLOCK_LISTS_ ofThread = {};
    atThreadEnd.isSet = true;
    rt___blockLists = &ofThread;
    return true;
}

} // namespace

RT_OBJ rt::allocateNewBlock( int64_t size ) { return reinterpret_cast<RT_OBJ>( allocate<char>( size ) ); }

void rt::freeUnlistedBlock( RT_OBJ obj )
{
    if ( listsBlocks && !rt___blockLists && obj->size <= mostListed && makeLists() )
        freeBlock( obj );
    else
        std::free( obj );
}

RT_OBJ rt::growBlock( RT_OBJ obj, int64_t size )
{
    int64_t before = obj->size;
    if ( before > mostListed )
    {
        size = roundedToBlock( size );
        obj = reinterpret_cast<RT_OBJ>( reallocate( reinterpret_cast<char *>( obj ), size ) );
        obj->size = size;
        return obj;
    }
    RT_OBJ larger = allocateBlock( &size );
    std::memcpy( larger, obj, static_cast<std::size_t>( before ) );
    larger->size = size;
    freeBlock( obj );
    return larger;
}
