// The blocks that hold objects. Small freed blocks wait in lists of their thread for the next object of their size, so
// that making and freeing a short-lived object costs only a few instructions.
#pragma once

#include "rt/rt_object.h"

// Sanitizers must see each block from malloc to free.
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

inline constexpr int64_t blockStep = 16, mostListed = 4096, mostBytesInList = 16384;

// Freed blocks of one size. The first eight bytes of each point to the next.
struct BlockList
{
    void *first;
    int64_t bytes;
};
} // namespace rt

struct RT_BLOCK_LISTS_
{
    rt::BlockList of[rt::mostListed / rt::blockStep + 1];
};

namespace rt
{

RT_OBJ allocateNewBlock( int64_t size );
void freeUnlistedBlock( RT_OBJ obj );

// The list of blocks of that size.
inline BlockList &blockListOf( int64_t size )
{
    return rt___blockLists->of[static_cast<uint64_t>( size ) / static_cast<uint64_t>( blockStep )];
}

// Without lists a block has exactly the requested size, so that sanitizers see any access past its end.
inline int64_t roundedToBlock( int64_t size )
{
    return listsBlocks ? ( size + blockStep - 1 ) & -blockStep : size;
}

// A block of that many bytes, already rounded, from the lists, or null.
inline RT_OBJ takeListedBlock( int64_t size )
{
    if ( !rt___blockLists || size > mostListed )
        return nullptr;
    BlockList &list = blockListOf( size );
    void *block = list.first;
    if ( block )
    {
        list.first = *static_cast<void **>( block );
        list.bytes -= size;
    }
    return static_cast<RT_OBJ>( block );
}

// A block of at least that many bytes; size becomes the size of the block.
inline RT_OBJ allocateBlock( int64_t *size )
{
    *size = roundedToBlock( *size );
    RT_OBJ block = takeListedBlock( *size );
    return block ? block : allocateNewBlock( *size );
}

// What rt___ObjCreate does, inline if a free block is at hand.
inline RT_OBJ createObject( int64_t size, RT_SORT sort )
{
#ifndef RT_COUNT_OBJECTS
    int64_t rounded = roundedToBlock( size );
    if ( RT_OBJ obj = takeListedBlock( rounded ) )
    {
        *obj = { sort, 1, rounded };
        return obj;
    }
#endif
    return rt___ObjCreate( size, sort );
}

inline void freeBlock( RT_OBJ obj )
{
    int64_t size = obj->size;
    if ( rt___blockLists && size <= mostListed ) [[likely]]
    {
        BlockList &list = blockListOf( size );
        if ( list.bytes < mostBytesInList ) [[likely]]
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

// Moves an object to a block of at least that many bytes and frees the old block; the size in the object becomes that
// of the new block.
RT_OBJ growBlock( RT_OBJ obj, int64_t size );

} // namespace rt
