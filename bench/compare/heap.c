/* Counts heap calls and the bytes that they ask for; to be preloaded. A realloc is one call with its new size. */
#include <stdatomic.h>
#include <stddef.h>
#include <stdint.h>

extern void *__libc_malloc( size_t );
extern void *__libc_calloc( size_t, size_t );
extern void *__libc_realloc( void *, size_t );
extern void *__libc_memalign( size_t, size_t );

void heapRead( int64_t *calls, int64_t *bytes );
void *malloc( size_t size );
void *calloc( size_t n, size_t size );
void *realloc( void *block, size_t size );
void *memalign( size_t alignment, size_t size );
void *aligned_alloc( size_t alignment, size_t size );
int posix_memalign( void **block, size_t alignment, size_t size );

static _Atomic int64_t allCalls, allBytes;

static void count( size_t size )
{
    ++allCalls;
    allBytes += (int64_t)size;
}

void heapRead( int64_t *calls, int64_t *bytes )
{
    *calls = allCalls;
    *bytes = allBytes;
}

void *malloc( size_t size )
{
    count( size );
    return __libc_malloc( size );
}

void *calloc( size_t n, size_t size )
{
    count( n * size );
    return __libc_calloc( n, size );
}

void *realloc( void *block, size_t size )
{
    count( size );
    return __libc_realloc( block, size );
}

void *memalign( size_t alignment, size_t size )
{
    count( size );
    return __libc_memalign( alignment, size );
}

void *aligned_alloc( size_t alignment, size_t size ) { return memalign( alignment, size ); }

int posix_memalign( void **block, size_t alignment, size_t size )
{
    *block = memalign( alignment, size );
    return *block ? 0 : 12;
}
