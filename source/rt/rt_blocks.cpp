// The blocks that objects stand in.
#include "rt/rt_blocks.hpp"

#include <algorithm>

#include "rt/rt_memory.hpp"

// Sanitizers follow each block from malloc to free.
#if defined( __SANITIZE_ADDRESS__ ) || defined( __SANITIZE_THREAD__ )
static constexpr bool listsBlocks = false;
#elif defined( __has_feature )
#if __has_feature( address_sanitizer ) || __has_feature( thread_sanitizer )
static constexpr bool listsBlocks = false;
#else
static constexpr bool listsBlocks = true;
#endif
#else
static constexpr bool listsBlocks = true;
#endif

namespace
{

constexpr int64_t step = 16, mostListed = 512, mostBytesInList = 16384;

// Freed blocks, the first eight bytes of each leading to the next, by size.
struct List
{
    void *first;
    int64_t bytes;
};
struct Lists
{
    List of[mostListed / step + 1];
};

// The lists of the thread: null until it frees its first block, and again once it has ended.
[[gnu::tls_model( "initial-exec" )]] constinit thread_local Lists *lists = nullptr;
constinit thread_local bool hasEnded = false;

// Frees the lists when the thread ends.
struct AtThreadEnd
{
    bool isSet = false;

    ~AtThreadEnd()
    {
        hasEnded = true;
        for ( List &list : std::exchange( lists, nullptr )->of )
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
    static thread_local Lists ofThread = {};
    atThreadEnd.isSet = true;
    lists = &ofThread;
    return true;
}

} // namespace

// Without lists a block has exactly its size, so that sanitizers see each byte behind it.
static int64_t rounded( int64_t size ) { return listsBlocks ? ( size + step - 1 ) / step * step : size; }

RT_OBJ rt::allocateBlock( int64_t *size )
{
    *size = rounded( *size );
    if ( lists && *size <= mostListed )
    {
        List &list = lists->of[*size / step];
        if ( void *block = list.first )
        {
            list.first = *static_cast<void **>( block );
            list.bytes -= *size;
            return static_cast<RT_OBJ>( block );
        }
    }
    return reinterpret_cast<RT_OBJ>( allocate<char>( *size ) );
}

void rt::freeBlock( RT_OBJ obj )
{
    int64_t size = obj->size;
    if ( listsBlocks && size <= mostListed && ( lists || makeLists() ) )
    {
        List &list = lists->of[size / step];
        if ( list.bytes < mostBytesInList )
        {
            void *block = obj;
            *static_cast<void **>( block ) = list.first;
            list.first = block;
            list.bytes += size;
            return;
        }
    }
    std::free( obj );
}

RT_OBJ rt::growBlock( RT_OBJ obj, int64_t size )
{
    int64_t before = obj->size;
    if ( before > mostListed )
    {
        size = rounded( size );
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
