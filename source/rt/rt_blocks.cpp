// The blocks that hold objects.
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
        RT_BLOCK_LISTS_ *lists = std::exchange( rt___blockLists, nullptr );
        for ( rt::BlockList &list : lists->of )
            while ( list.first )
                std::free( std::exchange( list.first, *static_cast<void **>( list.first ) ) );
        std::free( lists );
    }
};

// False if the thread has ended or memory has run out. Only the pointer is thread-local: a program that loads the
// library while it runs has little room for thread-local variables.
bool makeLists()
{
    auto lists =
        hasEnded ? nullptr : static_cast<RT_BLOCK_LISTS_ *>( std::calloc( 1, sizeof( RT_BLOCK_LISTS_ ) ) );
    if ( !lists )
        return false;
    static thread_local AtThreadEnd atThreadEnd;
    atThreadEnd.isSet = true;
    rt___blockLists = lists;
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
