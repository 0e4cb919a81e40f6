// The blocks that objects stand in. Small ones that were freed wait in lists of their thread for the next
// object of their size, so that making and freeing a short-lived object costs a few instructions.
#pragma once

#include "rt/rt_object.h"

// Sanitizers follow each block from malloc to free.
#if defined( __SANITIZE_ADDRESS__ ) || defined( __SANITIZE_THREAD__ )
inline constexpr bool listsBlocks = false;
#elif defined( __has_feature )
#if __has_feature( address_sanitizer ) || __has_feature( thread_sanitizer )
inline constexpr bool listsBlocks = false;
#else
inline constexpr bool listsBlocks = true;
#endif
#else
inline constexpr bool listsBlocks = true;
#endif

namespace rt
{

inline constexpr int64_t blockStep = 16, mostListed = 512, mostBytesInList = 16384;

// Freed blocks, the first eight bytes of each leading to the next, by size.
struct BlockList
{
    void *first;
    int64_t bytes;
};
struct BlockLists
{
    BlockList of[mostListed / blockStep + 1];
};

// The lists of the thread: null until it frees its first block, and again once it has ended.
[[gnu::tls_model( "initial-exec" )]] extern constinit thread_local BlockLists *blockLists;

RT_OBJ allocateNewBlock( int64_t size );
void freeUnlistedBlock( RT_OBJ obj );

// Without lists a block has exactly its size, so that sanitizers see each byte behind it.
inline int64_t roundedToBlock( int64_t size )
{
    return listsBlocks ? ( size + blockStep - 1 ) / blockStep * blockStep : size;
}

// A block of at least that many bytes; the size becomes the block's own.
inline RT_OBJ allocateBlock( int64_t *size )
{
    *size = roundedToBlock( *size );
    if ( blockLists && *size <= mostListed )
    {
        BlockList &list = blockLists->of[*size / blockStep];
        if ( void *block = list.first )
        {
            list.first = *static_cast<void **>( block );
            list.bytes -= *size;
            return static_cast<RT_OBJ>( block );
        }
    }
    return allocateNewBlock( *size );
}

inline void freeBlock( RT_OBJ obj )
{
    int64_t size = obj->size;
    if ( blockLists && size <= mostListed )
    {
        BlockList &list = blockLists->of[size / blockStep];
        if ( list.bytes < mostBytesInList )
        {
            void *block = obj;
            *static_cast<void **>( block ) = list.first;
            list.first = block;
            list.bytes += size;
            return;
        }
    }
    freeUnlistedBlock( obj );
}

// A block of at least that many bytes with the object of another, which is gone; the size in the object
// becomes the block's.
RT_OBJ growBlock( RT_OBJ obj, int64_t size );

} // namespace rt
