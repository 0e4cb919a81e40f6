/* Objects: what every type of the runtime and of the libraries above it has in common.
 *
 * An object lives by its reference count. Who is given a new reference releases it; an argument stays the
 * caller's. An object that others hold too is never changed: a function that takes the address of a handle
 * puts a private copy there first. All sizes, indices and integers are signed 64-bit. */
#ifndef RT_RT_OBJECT_H
#define RT_RT_OBJECT_H

#include <stddef.h>
#include <stdint.h>

#define RT_API __attribute__( ( visibility( "default" ) ) )
#define RT_THREAD_LOCAL __thread __attribute__( ( tls_model( "initial-exec" ) ) )

#ifdef __cplusplus
#define RT_BEGIN \
    extern "C"   \
    {
#define RT_END }
#define RT_NORETURN [[noreturn]]
#else
#define RT_BEGIN
#define RT_END
#define RT_NORETURN _Noreturn
#endif

RT_BEGIN

/* A truth value, 0 or not, and one code point. */
typedef int32_t RT_BOOL;
typedef uint32_t RT_CHAR;

/* Whether the number is a code point. */
#define RT_CHAR_OK( CH ) ( ( CH ) <= 0x10FFFF )

/* The code points of a line end. */
#define RT_CHAR_LINE_FEED 0x0A
#define RT_CHAR_CARRIAGE_RETURN 0x0D

/* The identity of a type, and the handle of a string (rt_string.h). */
typedef const struct RT_SORT_ *RT_SORT;
typedef struct RT_STRING_ *RT_STRING;

/* What every object begins with. Callers leave it alone. */
typedef struct RT_OBJECT_
{
    RT_SORT sort;  /* null in the static records of a module */
    int64_t count; /* references, atomic; RT_COUNT_IMMORTAL and above is never counted */
    int64_t size;  /* of the block in bytes; 0 for an object that exists from load on */
} RT_OBJECT, *RT_OBJ;

/* The least count of an object that is never freed. */
#define RT_COUNT_IMMORTAL ( (int64_t)1 << 62 )

/* The header of an object that exists from load on and is never freed. */
#define RT_STATIC_OBJECT           \
    {                              \
        NULL, RT_COUNT_IMMORTAL, 0 \
    }

/* The sort record: the static descriptor of an object type, whose address is the type's identity. Each of
 * the functions may be null. */
struct RT_SORT_
{
    RT_OBJECT object;                 /* its own beginning, static */
    const struct RT_MODULE_ *module;  /* that the type belongs to; null where there is none */
    const char *name;                 /* such as "RT_STRING" */
    void ( *freeFunc )( RT_OBJ obj ); /* releases what the object refers to; the runtime frees the block */
    int64_t ( *compareFunc )( RT_OBJ objA, RT_OBJ objB ); /* of two objects of the type, neither null */
    RT_STRING ( *toStringFunc )( RT_OBJ obj );            /* a new reference */
    void *reserved[5];                                    /* null */
};

/* The functions that every type has.
 *
 *   Sort              the type's identity; borrowed
 *   Retain            takes one reference more, atomically; null aborts
 *   Release           gives one reference up, atomically, and frees the object with the last one; null aborts
 *   Obj               the object as an object of any type, without a new reference; null gives null
 *   From              an object of any type as one of this type, without a new reference; null gives null, and an
 *                     object of another type aborts
 *   ToString          the object's text, a new reference; null aborts
 *   Compare           how two objects sort: negative, 0 or positive; null aborts
 *   Equals            whether Compare gives 0; null equals null alone */
#define RT_OBJECT_TYPE( API, NAME, HANDLE )                \
    typedef struct HANDLE##_ *HANDLE;                      \
    API RT_SORT NAME##Sort( void );                        \
    API void NAME##Retain( HANDLE obj );                   \
    API void NAME##Release( HANDLE obj );                  \
    API RT_OBJ NAME##Obj( HANDLE obj );                    \
    API HANDLE NAME##From( RT_OBJ obj );                   \
    API RT_STRING NAME##ToString( HANDLE obj );            \
    API int64_t NAME##Compare( HANDLE objA, HANDLE objB ); \
    API RT_BOOL NAME##Equals( HANDLE objA, HANDLE objB );

/* Any object. Both abort for null. */
RT_API void rtObjRetain( RT_OBJ obj );
RT_API void rtObjRelease( RT_OBJ obj );

/* The sort that the object was made with; borrowed. Null aborts. */
RT_API RT_SORT rtObjSort( RT_OBJ obj );

/* The object's text, a new reference; the sort's name if the type has no text. Null aborts. */
RT_API RT_STRING rtObjToString( RT_OBJ obj );

/* Negative, 0 or positive. Null comes before every object. Objects of a type without an order of its own are
 * equal only to themselves, and the order of objects of two types is any that stays while they live. */
RT_API int64_t rtObjCompare( RT_OBJ objA, RT_OBJ objB );

/* For the libraries above: a block of that many bytes, header included, with the count 1 and nothing yet
 * behind the header; the end of an object whose count has reached 0; and one reference less. */
RT_API RT_OBJ rt___ObjCreate( int64_t size, RT_SORT sort );
RT_API void rt___ObjFree( RT_OBJ obj );
RT_API void rt___ObjDrop( RT_OBJ obj );

/* For the libraries above: the fields of a type as words of eight bytes behind the header. Of the two sets of them the
 * lowest bit is the first word: which ones refer to an object or are null, and which are numbers. Where two objects
 * are compared, any other holds truth values. */
typedef const struct RT_LAYOUT_
{
    uint32_t words;
    uint32_t refs;
    uint32_t numbers;
} *RT_LAYOUT;

/* A new object of the same sort with the same fields. The object itself, or a copy in exchange for the caller's
 * reference if others hold it too. The end of all references. The order of two objects: the first word that differs
 * decides. */
RT_API RT_OBJ rt___ObjCopy( RT_OBJ obj, RT_LAYOUT layout );
RT_API RT_OBJ rt___ObjOwn( RT_OBJ obj, RT_LAYOUT layout );
RT_API void rt___ObjReleaseFields( RT_OBJ obj, RT_LAYOUT layout );
RT_API int64_t rt___ObjCompareFields( RT_OBJ objA, RT_OBJ objB, RT_LAYOUT layout );

/* For the libraries above: the free blocks of the thread; null until it frees its first one, and again once it has
 * ended. */
extern RT_API RT_THREAD_LOCAL struct RT_BLOCK_LISTS_ *rt___blockLists;

/* For tests: how many objects exist that were made at run time, in all threads. -1 where the library does not
 * count, which is so in release builds. */
RT_API int64_t rtObjsAlive( void );

/* Ends the process, with one line on standard error: the source unit, the line, the message unless it is
 * null, and the condition that did not hold. */
RT_NORETURN RT_API void rt___Abort( const char *message, const char *file, int64_t line,
                                    const char *expression );

RT_END

#endif
