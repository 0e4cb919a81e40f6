// Vectors: one array with room at its end and, once elements have been removed or added there, at its front.
#include "rt/rt_vector.h"

#include <algorithm>

#include "rt/rt_memory.hpp"

using rt::Ref;

struct RT_VECTOR_
{
    RT_OBJECT object;
    RT_OBJ *block;    // the array, or null; a small one follows this structure
    int64_t capacity; // of the array
    int64_t first;    // where the elements begin in it
    int64_t length;

    RT_OBJ *inner() { return reinterpret_cast<RT_OBJ *>( this + 1 ); }
    RT_OBJ *begin() { return block + first; }
    RT_OBJ *end() { return block + first + length; }
};

static void freeBlock( RT_VECTOR vector )
{
    if ( vector->block != vector->inner() )
        std::free( vector->block );
}

static void freeFunc( RT_OBJ obj )
{
    RT_VECTOR vector = rtVectorFrom( obj );
    std::for_each( vector->begin(), vector->end(), rt::release );
    freeBlock( vector );
}

static int64_t compareFunc( RT_OBJ objA, RT_OBJ objB )
{
    RT_VECTOR a = rtVectorFrom( objA ), b = rtVectorFrom( objB );
    for ( int64_t i = 0; i < a->length && i < b->length; ++i )
        if ( int64_t order = rtObjCompare( a->begin()[i], b->begin()[i] ) )
            return order;
    return a->length < b->length ? -1 : a->length > b->length;
}

static RT_STRING toStringFunc( RT_OBJ obj )
{
    RT_VECTOR vector = rtVectorFrom( obj );
    Ref<RT_STRING> text = rt::adopt( rtStringCreate() );
    for ( RT_OBJ *item = vector->begin(); item != vector->end(); ++item )
    {
        if ( item != vector->begin() )
            rtStringAppendCstr( text.address(), ", ", 2 );
        rtStringAppend( text.address(), rt::adopt( rtObjToString( *item ) ).get() );
    }
    return text.take();
}

RT_DEFINE_STDFUNCS( rt, nullptr, Vector, RT_VECTOR, freeFunc, compareFunc, toStringFunc )

// One empty vector serves as all of them; the first change makes a copy.
static constexpr RT_VECTOR_ emptyVector = {
    { &rt___sort_RT_VECTOR, RT_COUNT_IMMORTAL, 0 }, nullptr, 0, 0, 0
};

RT_VECTOR rtVectorCreate( void ) { return const_cast<RT_VECTOR>( &emptyVector ); }

RT_VECTOR rtVectorCreateWithCapacity( int64_t capacity )
{
    RT_ASSERT( capacity >= 0 );
    static constexpr int64_t mostInner = 8;
    bool isInner = capacity <= mostInner;
    int64_t inner = isInner ? capacity * static_cast<int64_t>( sizeof( RT_OBJ ) ) : 0;
    auto *vector = reinterpret_cast<RT_VECTOR>(
        rt::createObject( static_cast<int64_t>( sizeof( RT_VECTOR_ ) ) + inner, rtVectorSort() ) );
    vector->block = isInner ? vector->inner() : rt::allocate<RT_OBJ>( capacity );
    vector->capacity = capacity;
    vector->first = 0;
    vector->length = 0;
    return vector;
}

// The vector of the handle, made private to it.
static RT_VECTOR own( RT_VECTOR *handle, int64_t added = 0 )
{
    RT_ASSERT( handle );
    RT_ASSERT( *handle );
    RT_VECTOR old = *handle;
    if ( rt::shared( rt::asObj( old ) ) )
    {
        RT_VECTOR copy = rtVectorCreateWithCapacity( old->length + added );
        std::for_each( old->begin(), old->end(), rt::retain );
        rt::copyItems( copy->block, old->begin(), old->length );
        copy->length = old->length;
        *handle = copy;
        rtVectorRelease( old );
    }
    return *handle;
}

// Opens a gap for one element and returns its place. If the array is full at the end where it grows, a larger one
// replaces it, with room at both ends if it has ever grown or shrunk at its front. A few elements move up instead.
static RT_OBJ *openGap( RT_VECTOR vector, int64_t index )
{
    static constexpr int64_t mostMoved = 8;
    bool isFullAtEnd = vector->first + vector->length == vector->capacity;
    bool movesUp = vector->first == 0 && !isFullAtEnd && vector->length <= mostMoved;
    bool atFront = index == 0 && vector->length && !movesUp;
    if ( atFront ? vector->first == 0 : isFullAtEnd )
    {
        int64_t capacity = rt::grown( vector->length, vector->length + 4 );
        int64_t first = atFront || vector->first ? ( capacity - vector->length + 1 ) / 2 : 0;
        RT_OBJ *block = rt::allocate<RT_OBJ>( capacity );
        rt::copyItems( block + first, vector->begin(), vector->length );
        freeBlock( vector );
        vector->block = block;
        vector->capacity = capacity;
        vector->first = first;
    }
    ++vector->length;
    if ( atFront )
        --vector->first;
    else
        std::move_backward( vector->begin() + index, vector->end() - 1, vector->end() );
    return vector->begin() + index;
}

int64_t rtVectorLength( RT_VECTOR vector )
{
    RT_ASSERT( vector );
    return vector->length;
}

RT_OBJ rt___VectorObjBorrowed( RT_VECTOR vector, int64_t index )
{
    RT_ASSERT( vector );
    RT_ASSERT( index >= 0 && index < vector->length );
    return vector->begin()[index];
}

RT_OBJ rtVectorObjAt( RT_VECTOR vector, int64_t index )
{
    return rt::share( rt___VectorObjBorrowed( vector, index ) ).take();
}

RT_BOOL rtVectorContainsOnly( RT_VECTOR vector, RT_SORT sort )
{
    RT_ASSERT( vector );
    return std::all_of( vector->begin(), vector->end(), [sort]( RT_OBJ obj ) { return obj->sort == sort; } );
}

void rt___VectorInsertTaken( RT_VECTOR *vector, int64_t index, RT_OBJ obj )
{
    RT_ASSERT( vector );
    RT_ASSERT( index >= -1 && index <= rtVectorLength( *vector ) );
    RT_VECTOR changed = own( vector, 1 );
    *openGap( changed, index == -1 ? changed->length : index ) = obj;
}

static void insert( RT_VECTOR *vector, int64_t index, RT_OBJ obj )
{
    RT_ASSERT( obj );
    RT_ASSERT( index >= 0 && index <= rtVectorLength( *vector ) );
    rt::retain( obj );
    *openGap( own( vector, 1 ), index ) = obj;
}

void rtVectorAppend( RT_VECTOR *vector, RT_OBJ obj )
{
    RT_ASSERT( vector );
    insert( vector, rtVectorLength( *vector ), obj );
}

void rtVectorAppendString( RT_VECTOR *vector, RT_STRING string )
{
    rtVectorAppend( vector, rtStringObj( string ) );
}

void rtVectorPrependString( RT_VECTOR *vector, RT_STRING string )
{
    rtVectorInsertString( vector, 0, string );
}

void rtVectorInsertString( RT_VECTOR *vector, int64_t index, RT_STRING string )
{
    RT_ASSERT( vector );
    insert( vector, index, rtStringObj( string ) );
}

void rtVectorSetStringAt( RT_VECTOR *vector, int64_t index, RT_STRING string )
{
    RT_ASSERT( vector );
    RT_ASSERT( string );
    RT_ASSERT( index >= 0 && index < rtVectorLength( *vector ) );
    RT_OBJ &item = own( vector )->begin()[index];
    auto old = rt::adopt( std::exchange( item, rtStringObj( rt::share( string ).take() ) ) );
}

void rtVectorDelAt( RT_VECTOR *handle, int64_t index )
{
    RT_ASSERT( handle );
    RT_ASSERT( index >= 0 && index < rtVectorLength( *handle ) );
    if ( index == 0 )
    {
        rtVectorDelLeading( handle, 1 );
        return;
    }
    RT_VECTOR vector = own( handle );
    auto old = rt::adopt( vector->begin()[index] );
    std::move( vector->begin() + index + 1, vector->end(), vector->begin() + index );
    --vector->length;
}

void rtVectorDelLeading( RT_VECTOR *handle, int64_t count )
{
    RT_ASSERT( handle );
    RT_ASSERT( count >= 0 && count <= rtVectorLength( *handle ) );
    RT_VECTOR vector = own( handle );
    std::for_each( vector->begin(), vector->begin() + count, rt::release );
    vector->first += count;
    vector->length -= count;
}

void rtVectorClear( RT_VECTOR *vector )
{
    RT_ASSERT( vector );
    RT_ASSERT( *vector );
    auto old = rt::adopt( std::exchange( *vector, rtVectorCreate() ) );
}
