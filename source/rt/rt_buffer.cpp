// Buffers: one block whose bytes begin at an offset, so that taking out the first ones moves nothing. A buffer that
// is small when it is made has it behind its structure.
#include "rt/rt_buffer.h"

#include <algorithm>

#include "rt/rt_memory.hpp"
#include "rt/rt_scan.hpp"

struct RT_BUFFER_
{
    RT_OBJECT object;
    unsigned char *block; // or null
    int64_t capacity;     // of the block
    int64_t offset;       // where the bytes begin in it
    int64_t length;

    unsigned char *inner() { return reinterpret_cast<unsigned char *>( this + 1 ); }
};

static void freeFunc( RT_OBJ obj )
{
    RT_BUFFER buffer = rtBufferFrom( obj );
    if ( buffer->block != buffer->inner() )
        std::free( buffer->block );
}

// Never null, so that an empty buffer needs no care.
static const unsigned char *bytesOf( RT_BUFFER buffer )
{
    static constexpr unsigned char none = 0;
    return buffer->block ? buffer->block + buffer->offset : &none;
}

static int64_t compareFunc( RT_OBJ objA, RT_OBJ objB )
{
    RT_BUFFER a = rtBufferFrom( objA ), b = rtBufferFrom( objB );
    auto common = static_cast<std::size_t>( std::min( a->length, b->length ) );
    int order = std::memcmp( bytesOf( a ), bytesOf( b ), common );
    return order ? order : a->length - b->length;
}

RT_DEFINE_STDFUNCS( rt, nullptr, Buffer, RT_BUFFER, freeFunc, compareFunc, nullptr )

static bool inside( RT_BUFFER buffer, int64_t offset, int64_t length )
{
    return offset >= 0 && length >= 0 && length <= buffer->length - offset;
}

// How many bytes more fit into the block. Moving its bytes to the front must be paid for by as many that were
// taken out there.
static int64_t space( RT_BUFFER buffer )
{
    return buffer->capacity - buffer->length - ( buffer->offset < buffer->length ? buffer->offset : 0 );
}

static void makeRoom( RT_BUFFER buffer, int64_t more )
{
    if ( more <= buffer->capacity - buffer->offset - buffer->length )
        return;
    bool fits = more <= space( buffer );
    if ( buffer->offset )
        std::memmove( buffer->block, bytesOf( buffer ), static_cast<std::size_t>( buffer->length ) );
    buffer->offset = 0;
    if ( !fits )
    {
        buffer->capacity = rt::grown( buffer->length, buffer->length + more );
        bool isInner = buffer->block == buffer->inner();
        unsigned char *block = rt::reallocate( isInner ? nullptr : buffer->block, buffer->capacity );
        if ( isInner )
            rt::copyItems( block, buffer->block, buffer->length );
        buffer->block = block;
    }
}

// The buffer behind the handle, private to it, with nothing left of its bytes but a part, and with room
// behind that.
static RT_BUFFER own( RT_BUFFER *handle, int64_t offset, int64_t length, int64_t more )
{
    RT_BUFFER buffer = *handle;
    if ( rt::shared( rt::asObj( buffer ) ) )
    {
        auto old = rt::adopt( buffer );
        *handle = buffer = rtBufferCreate();
        makeRoom( buffer, length + more );
        rt::copyItems( buffer->block, bytesOf( old.get() ) + offset, length );
    }
    else
        buffer->offset = length ? buffer->offset + offset : 0;
    buffer->length = length;
    makeRoom( buffer, more );
    return buffer;
}

unsigned char *rt___BufferExtend( RT_BUFFER *handle, int64_t length )
{
    RT_CHECK( length <= PTRDIFF_MAX - ( *handle )->length, "out of memory", "length" );
    RT_BUFFER buffer = own( handle, 0, ( *handle )->length, length );
    buffer->length += length;
    return buffer->block + buffer->offset + buffer->length - length;
}

// The source of bytes for the buffer. Where it is the buffer itself, it is what stands behind the handle once
// that is made private.
static RT_BUFFER &sourceFor( RT_BUFFER *buffer, RT_BUFFER &source, int64_t offset, int64_t length )
{
    RT_ASSERT( buffer );
    RT_ASSERT( *buffer );
    RT_ASSERT( source );
    RT_ASSERT( inside( source, offset, length ) );
    return source == *buffer ? *buffer : source;
}

static void append( RT_BUFFER *buffer, RT_BUFFER &source, int64_t offset, int64_t length )
{
    if ( length == 0 )
        return;
    unsigned char *into = rt___BufferExtend( buffer, length );
    rt::copyItems( into, bytesOf( source ) + offset, length );
}

RT_BUFFER rtBufferCreate( void )
{
    auto *buffer = reinterpret_cast<RT_BUFFER>( rt___ObjCreate( sizeof( RT_BUFFER_ ), rtBufferSort() ) );
    buffer->block = nullptr;
    buffer->capacity = buffer->offset = buffer->length = 0;
    return buffer;
}

RT_BUFFER rt___BufferCreateWithLength( int64_t length, unsigned char **bytes )
{
    constexpr auto own = static_cast<int64_t>( sizeof( RT_BUFFER_ ) );
    RT_CHECK( length <= PTRDIFF_MAX - rt::scanSlack, "out of memory", "length" );
    int64_t size = length + rt::scanSlack;
    bool isInner = size <= rt::mostListed - own;
    auto *buffer =
        reinterpret_cast<RT_BUFFER>( rt___ObjCreate( isInner ? own + size : own, rtBufferSort() ) );
    buffer->block = isInner ? buffer->inner() : rt::allocate<unsigned char>( size );
    buffer->capacity = buffer->length = length;
    buffer->offset = 0;
    *bytes = buffer->block;
    return buffer;
}

RT_BUFFER rtBufferCreateFromBytesCopy( const void *bytes, int64_t length )
{
    RT_ASSERT( length >= 0 );
    RT_ASSERT( bytes || length == 0 );
    unsigned char *into;
    RT_BUFFER buffer = rt___BufferCreateWithLength( length, &into );
    rt::copyItems( into, static_cast<const unsigned char *>( bytes ), length );
    return buffer;
}

int64_t rtBufferLength( RT_BUFFER buffer )
{
    RT_ASSERT( buffer );
    return buffer->length;
}

int64_t rtBufferSpace( RT_BUFFER buffer )
{
    RT_ASSERT( buffer );
    return space( buffer );
}

const void *rtBufferBacking( RT_BUFFER buffer )
{
    RT_ASSERT( buffer );
    return bytesOf( buffer );
}

void rtBufferRead( RT_BUFFER buffer, int64_t offset, void *bytes, int64_t length )
{
    RT_ASSERT( buffer );
    RT_ASSERT( inside( buffer, offset, length ) );
    RT_ASSERT( bytes || length == 0 );
    rt::copyItems( static_cast<unsigned char *>( bytes ), bytesOf( buffer ) + offset, length );
}

void rtBufferAppendBytes( RT_BUFFER *buffer, const void *bytes, int64_t length )
{
    RT_ASSERT( buffer );
    RT_ASSERT( *buffer );
    RT_ASSERT( length >= 0 );
    RT_ASSERT( bytes || length == 0 );
    if ( length == 0 )
        return;
    // A part of the buffer itself must outlive the buffer's move.
    const auto *from = static_cast<const unsigned char *>( bytes ), *own = bytesOf( *buffer );
    bool isOwnPart = from >= own && from < own + ( *buffer )->length;
    rt::Ref<RT_BUFFER> source = isOwnPart ? rt::share( *buffer ) : rt::Ref<RT_BUFFER>();
    rt::copyItems( rt___BufferExtend( buffer, length ), from, length );
}

void rtBufferAppend( RT_BUFFER *buffer, RT_BUFFER source )
{
    RT_ASSERT( source );
    rtBufferAppendInner( buffer, source, 0, source->length );
}

void rtBufferAppendInner( RT_BUFFER *buffer, RT_BUFFER source, int64_t offset, int64_t length )
{
    append( buffer, sourceFor( buffer, source, offset, length ), offset, length );
}

void rtBufferAppendOuter( RT_BUFFER *buffer, RT_BUFFER source, int64_t offset, int64_t length )
{
    RT_BUFFER &from = sourceFor( buffer, source, offset, length );
    int64_t end = offset + length, all = source->length;
    append( buffer, from, 0, offset );
    append( buffer, from, end, all - end );
}

void rtBufferAppendLeading( RT_BUFFER *buffer, RT_BUFFER source, int64_t length )
{
    rtBufferAppendInner( buffer, source, 0, length );
}

void rtBufferAppendTrailing( RT_BUFFER *buffer, RT_BUFFER source, int64_t length )
{
    RT_ASSERT( source );
    RT_ASSERT( inside( source, 0, length ) );
    rtBufferAppendInner( buffer, source, source->length - length, length );
}

void rtBufferDelLeading( RT_BUFFER *buffer, int64_t length )
{
    RT_ASSERT( buffer );
    RT_ASSERT( *buffer );
    RT_ASSERT( inside( *buffer, 0, length ) );
    rtBufferDelOuter( buffer, length, ( *buffer )->length - length );
}

void rtBufferDelOuter( RT_BUFFER *buffer, int64_t offset, int64_t length )
{
    RT_ASSERT( buffer );
    RT_ASSERT( *buffer );
    RT_ASSERT( inside( *buffer, offset, length ) );
    if ( length != ( *buffer )->length )
        own( buffer, offset, length, 0 );
}
