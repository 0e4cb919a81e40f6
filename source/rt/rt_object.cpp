// Objects, their counts and their end.
#include "rt/rt_object.h"

#include <bit>

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

static RT_STRING nameOf( RT_OBJ obj )
{
    return rtStringCreateFromCstr( reinterpret_cast<RT_SORT>( obj )->name, -1 );
}

constexpr RT_SORT_ rt___sort_RT_SORT = {
    RT_STATIC_OBJECT( &rt___sort_RT_SORT ), nullptr, "RT_SORT", nullptr, nullptr, nameOf, {}
};

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

RT_OBJ rt___ObjCreate( int64_t size, RT_SORT sort )
{
    RT_OBJ obj = rt::allocateBlock( &size );
    *obj = { sort, 1, size };
    countAlive( 1 );
    return obj;
}

static void freeBlock( RT_OBJ obj )
{
    rt::freeBlock( obj );
    countAlive( -1 );
}

// Apart from rt___ObjFree, which so needs no room on the stack.
[[gnu::noinline]] static void freeHolder( RT_OBJ obj )
{
    if ( obj->sort->freeFunc )
        obj->sort->freeFunc( obj );
    freeBlock( obj );
}

// Most objects are strings, and most strings hold nothing.
void rt___ObjFree( RT_OBJ obj )
{
    if ( obj->sort == &rt___sort_RT_STRING && !reinterpret_cast<RT_STRING>( obj )->parent )
        freeBlock( obj );
    else
        freeHolder( obj );
}

// Fields of any object

// The references that are not null, one after another. Their types are known to the object's unit alone.
template <class VISIT>
static void eachRef( RT_OBJ obj, uint64_t refs, VISIT visit )
{
    using AnyRef [[gnu::may_alias]] = RT_OBJ;
    auto *words = reinterpret_cast<AnyRef *>( obj + 1 );
    for ( ; refs; refs &= refs - 1 )
        if ( AnyRef &ref = words[std::countr_zero( refs )] )
            visit( ref );
}

void rt___ObjClearFields( RT_OBJ obj, uint64_t refs )
{
    eachRef( obj, refs,
             []( auto &ref )
             {
                 RT_OBJ old = std::exchange( ref, nullptr );
                 if ( rt::giveUp( old ) )
                     rt___ObjFree( old );
             } );
}

RT_OBJ rt___ObjCopy( RT_OBJ obj, int64_t size, uint64_t refs )
{
    RT_OBJ copy = rt___ObjCreate( size, obj->sort );
    std::memcpy( copy + 1, obj + 1, static_cast<std::size_t>( size ) - sizeof( RT_OBJECT ) );
    eachRef( copy, refs, rt::retain );
    return copy;
}

RT_OBJ rt___ObjOwn( RT_OBJ obj, int64_t size, uint64_t refs )
{
    RT_OBJ copy = rt___ObjCopy( obj, size, refs );
    rt::release( obj );
    return copy;
}
