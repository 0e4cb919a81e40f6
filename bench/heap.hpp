// The heap as seen by a program that measures its own: how many bytes are in use, the peak, and a heap that has run
// out. The functions of malloc are defined here, so one unit of a program includes this. With sanitizers, which have
// their own malloc, it measures nothing.
#pragma once

#include <malloc.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <thread>

namespace heap
{

inline std::atomic<int64_t> used, most;
inline std::atomic<int64_t> allocationsLeft = INT64_MAX;

inline void count( int64_t change )
{
    int64_t now = used += change;
    if ( now > most )
        most = now;
}

// A block and the word that the heap keeps before it.
inline int64_t sizeOf( void *block )
{
    return block ? static_cast<int64_t>( malloc_usable_size( block ) + sizeof( std::size_t ) ) : 0;
}

inline void *counted( void *block )
{
    count( sizeOf( block ) );
    return block;
}

inline bool hasRunOut()
{
    if ( allocationsLeft == INT64_MAX || allocationsLeft-- > 0 )
        return false;
    errno = ENOMEM;
    return true;
}

// How many bytes are kept alive by what the function makes. It is made in a thread of its own, so that blocks freed on
// the way go with the thread; what the first such thread leaves over doesn't count.
template <class MAKE>
int64_t heldBy( MAKE make )
{
    auto madeInThread = [make]
    {
        decltype( make() ) made;
        std::thread( [&] { made = make(); } ).join();
        return made;
    };
    madeInThread();
    int64_t before = used;
    auto made = madeInThread();
    return used - before;
}

#if defined( __SANITIZE_ADDRESS__ ) || defined( __SANITIZE_THREAD__ )
inline constexpr bool isMeasured = false;
#else
inline constexpr bool isMeasured = true;
#endif

} // namespace heap

#if !defined( __SANITIZE_ADDRESS__ ) && !defined( __SANITIZE_THREAD__ )
extern "C"
{
    void *__libc_malloc( std::size_t size );
    void *__libc_calloc( std::size_t count, std::size_t size );
    void *__libc_realloc( void *old, std::size_t size );
    void __libc_free( void *block );

    void *malloc( std::size_t size ) noexcept
    {
        return heap::hasRunOut() ? nullptr : heap::counted( __libc_malloc( size ) );
    }
    void *calloc( std::size_t count, std::size_t size ) noexcept
    {
        return heap::hasRunOut() ? nullptr : heap::counted( __libc_calloc( count, size ) );
    }
    // A block that is moved counts twice meanwhile.
    void *realloc( void *old, std::size_t size ) noexcept
    {
        if ( heap::hasRunOut() )
            return nullptr;
        int64_t before = heap::sizeOf( old );
        void *block = heap::counted( __libc_realloc( old, size ) );
        if ( block )
            heap::count( -before );
        return block;
    }
    void free( void *block ) noexcept
    {
        heap::count( -heap::sizeOf( block ) );
        __libc_free( block );
    }
}
#endif
