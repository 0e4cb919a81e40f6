// Memory other than objects. Running out of it ends the process.
#pragma once

#include <cstdlib>

#include "rt/rt_frame.hpp"

namespace rt
{

template <class T>
T *allocate( int64_t count )
{
    RT_CHECK( count >= 0 && count <= PTRDIFF_MAX / static_cast<int64_t>( sizeof( T ) ), "out of memory",
              "count" );
    void *block = std::malloc( static_cast<std::size_t>( count ) * sizeof( T ) );
    RT_CHECK( block || count == 0, "out of memory", "block" );
    return static_cast<T *>( block );
}

// A larger block in place of an old one.
template <class T>
T *reallocate( T *old, int64_t count )
{
    RT_CHECK( count > 0 && count <= PTRDIFF_MAX / static_cast<int64_t>( sizeof( T ) ), "out of memory",
              "count" );
    void *block = std::realloc( static_cast<void *>( old ), static_cast<std::size_t>( count ) * sizeof( T ) );
    RT_CHECK( block, "out of memory", "block" );
    return static_cast<T *>( block );
}

// How much room to make when something must grow, so that appending is amortised O(1).
inline int64_t grown( int64_t capacity, int64_t needed )
{
    int64_t more = capacity + capacity / 2;
    return more > needed ? more : needed;
}

// memcpy with a count of elements; a pointer may be null if the count is 0.
template <class T>
void copyItems( T *to, const T *from, int64_t count )
{
    if ( count > 0 )
        std::memcpy( static_cast<void *>( to ), from, static_cast<std::size_t>( count ) * sizeof( T ) );
}

// Items without a destructor, in one block that grows at its end. Zeroed bytes are an empty array. An array that starts
// in a borrowed block leaves it when it grows.
template <class T>
struct Array
{
    T *items;
    int64_t length, capacity;
    bool isBorrowed;

    void start( T *block, int64_t count ) { *this = { block, 0, count, true }; }

    T *begin() { return items; }
    T *end() { return items + length; }
    T &operator[]( int64_t index ) { return items[index]; }

    void reserve( int64_t count )
    {
        if ( count <= capacity )
            return;
        T *block = items && !isBorrowed ? reallocate( items, count ) : allocate<T>( count );
        if ( isBorrowed )
            copyItems( block, items, length );
        *this = { block, length, count, false };
    }
    T *append( const T &item )
    {
        if ( length == capacity )
            reserve( length ? 2 * length : 8 );
        return &( items[length++] = item );
    }
    void append( const Array &other )
    {
        reserve( length + other.length );
        copyItems( end(), other.items, other.length );
        length += other.length;
    }
    void clear()
    {
        if ( items && !isBorrowed )
            std::free( items );
        *this = {};
    }
};

} // namespace rt
