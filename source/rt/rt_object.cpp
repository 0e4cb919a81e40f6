// Objects, their counts and their end.
#include "rt/rt_object.h"

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

void rt___ObjFree( RT_OBJ obj )
{
    if ( obj->sort->freeFunc )
        obj->sort->freeFunc( obj );
    freeBlock( obj );
}

void rt___StringFree( RT_STRING string )
{
    if ( string->parent )
        rtStringRelease( string->parent );
    freeBlock( rt::asObj( string ) );
}
