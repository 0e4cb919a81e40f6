// Objects, their counts and their end.
#include "rt/rt_object.h"

#include <algorithm>
#include <bit>
#include <cstdio>

#include "rt/rt_blocks.hpp"
#include "rt/rt_memory.hpp"
#include "rt/rt_string.hpp"

#ifdef RT_COUNT_OBJECTS
static std::atomic<int64_t> alive;
static void countAlive( int64_t change ) { alive += change; }
int64_t rtObjsAlive( void ) { return alive; }
#else
static void countAlive( int64_t ) {}
int64_t rtObjsAlive( void ) { return -1; }
#endif

void rtObjRetain( RT_OBJ obj )
{
    RT_ASSERT( obj );
    rt::retain( obj );
}

void rtObjRelease( RT_OBJ obj )
{
    RT_ASSERT( obj );
    rt::release( obj );
}

RT_SORT rtObjSort( RT_OBJ obj )
{
    RT_ASSERT( obj );
    return obj->sort;
}

RT_STRING rtObjToString( RT_OBJ obj )
{
    RT_ASSERT( obj );
    return obj->sort->toStringFunc ? obj->sort->toStringFunc( obj )
                                   : rtStringCreateFromCstr( obj->sort->name, -1 );
}

int64_t rtObjCompare( RT_OBJ objA, RT_OBJ objB )
{
    if ( objA == objB )
        return 0;
    if ( !objA || !objB )
        return objA ? 1 : -1;
    if ( objA->sort != objB->sort )
        return std::less<>()( objA->sort, objB->sort ) ? -1 : 1;
    if ( objA->sort->compareFunc )
        return objA->sort->compareFunc( objA, objB );
    return std::less<>()( objA, objB ) ? -1 : 1;
}

// Apart from the other, which then needs no room on the stack.
[[gnu::noinline]] static RT_OBJ createInNewBlock( int64_t size, RT_SORT sort )
{
    RT_OBJ obj = rt::allocateNewBlock( size );
    *obj = { sort, 1, size };
    return obj;
}

RT_OBJ rt___ObjCreate( int64_t size, RT_SORT sort )
{
    countAlive( 1 );
    size = rt::roundedToBlock( size );
    RT_OBJ obj = rt::takeListedBlock( size );
    if ( !obj )
        return createInNewBlock( size, sort );
    *obj = { sort, 1, size };
    return obj;
}

static void freeBlock( RT_OBJ obj )
{
    rt::freeBlock( obj );
    countAlive( -1 );
}

void rt___ObjFree( RT_OBJ obj )
{
    if ( obj->sort->freeFunc )
        obj->sort->freeFunc( obj );
    freeBlock( obj );
}

// Most objects are strings, and most of them need nothing but their block freed.
void rt___ObjDrop( RT_OBJ obj )
{
    if ( !rt::giveUp( obj ) )
        return;
    if ( obj->sort == &rt___sort_RT_STRING && !reinterpret_cast<RT_STRING>( obj )->parent )
        freeBlock( obj );
    else
        rt___ObjFree( obj );
}

// Fields by their layout

static RT_OBJ *wordsOf( RT_OBJ obj ) { return reinterpret_cast<RT_OBJ *>( obj + 1 ); }

// The references among the words that are not null, one after the other.
template <class VISIT>
static void eachRef( RT_OBJ obj, RT_LAYOUT layout, VISIT visit )
{
    for ( uint32_t refs = layout->refs; refs; refs &= refs - 1 )
        if ( RT_OBJ &ref = wordsOf( obj )[std::countr_zero( refs )] )
            visit( ref );
}

RT_OBJ rt___ObjCopy( RT_OBJ obj, RT_LAYOUT layout )
{
    std::size_t size = layout->words * sizeof( int64_t );
    RT_OBJ copy = rt___ObjCreate( static_cast<int64_t>( sizeof( RT_OBJECT ) + size ), obj->sort );
    std::memcpy( wordsOf( copy ), wordsOf( obj ), size );
    eachRef( copy, layout, rt::retain );
    return copy;
}

RT_OBJ rt___ObjOwn( RT_OBJ obj, RT_LAYOUT layout )
{
    if ( !rt::shared( obj ) )
        return obj;
    RT_OBJ copy = rt___ObjCopy( obj, layout );
    rt::release( obj );
    return copy;
}

void rt___ObjReleaseFields( RT_OBJ obj, RT_LAYOUT layout )
{
    eachRef( obj, layout, []( RT_OBJ &ref ) { rt___ObjDrop( std::exchange( ref, nullptr ) ); } );
}

// The order of the first numbers that differ in two fields.
template <class NUMBER>
static int64_t compareNumbers( const void *a, const void *b )
{
    NUMBER inA[sizeof( int64_t ) / sizeof( NUMBER )], inB[std::size( inA )];
    std::memcpy( inA, a, sizeof inA );
    std::memcpy( inB, b, sizeof inB );
    auto order = std::lexicographical_compare_three_way( inA, std::end( inA ), inB, std::end( inB ) );
    return order < 0 ? -1 : order > 0;
}

int64_t rt___ObjCompareFields( RT_OBJ objA, RT_OBJ objB, RT_LAYOUT layout )
{
    for ( uint32_t i = 0; i < layout->words; ++i )
    {
        RT_OBJ *a = wordsOf( objA ) + i, *b = wordsOf( objB ) + i;
        int64_t order = layout->refs >> i & 1      ? rtObjCompare( *a, *b )
                        : layout->numbers >> i & 1 ? compareNumbers<int64_t>( a, b )
                                                   : compareNumbers<RT_BOOL>( a, b );
        if ( order )
            return order < 0 ? -1 : 1;
    }
    return 0;
}

void rt___Abort( const char *message, const char *file, int64_t line, const char *expression )
{
    const char *between = message ? ": " : "";
    std::fprintf( stderr, "%s:%lld: %s%s%s\n", file, static_cast<long long>( line ), message ? message : "",
                  between, expression );
    std::abort();
}
