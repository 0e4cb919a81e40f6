/* Objects: what all types of the runtime and of the libraries above it have in common.
 *
 * Objects are reference-counted. A caller releases each new reference that it receives, and keeps the references
 * that it passes in. An object that others hold too is never changed: a function that changes an object takes the
 * address of the handle and first puts a private copy there. All sizes, indices and integers are signed 64-bit. */
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

/* A truth value, false if 0 and true otherwise; one code point. */
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

/* The header that every object begins with. Callers leave it alone. */
typedef struct RT_OBJECT_
{
    RT_SORT sort;  /* the type */
    int64_t count; /* references, atomic; RT_COUNT_IMMORTAL and above is never counted */
    int64_t size;  /* of the block, in bytes; 0 for a static object */
} RT_OBJECT, *RT_OBJ;

/* The lowest count of an object that is never freed. */
#define RT_COUNT_IMMORTAL ( (int64_t)1 << 62 )

/* The header of a static object of that sort, which is never freed. */
#define RT_STATIC_OBJECT( SORT )   \
    {                              \
        SORT, RT_COUNT_IMMORTAL, 0 \
    }

/* The sort record: the static descriptor of an object type. Its address is the type's identity. Each of its
 * functions may be null. */
struct RT_SORT_
{
    RT_OBJECT object;                 /* its own header, static */
    const struct RT_MODULE_ *module;  /* that the type belongs to, or null */
    const char *name;                 /* such as "RT_STRING" */
    void ( *freeFunc )( RT_OBJ obj ); /* releases what the object refers to; the runtime frees the block */
    int64_t ( *compareFunc )( RT_OBJ objA, RT_OBJ objB ); /* of two objects of the type, neither null */
    RT_STRING ( *toStringFunc )( RT_OBJ obj );            /* returns a new reference */
    void *reserved[5];                                    /* null */
};

/* The sort of sort records, which are objects too. The text of a sort record is the name of its type. */
extern RT_API const struct RT_SORT_ rt___sort_RT_SORT;

/* The functions that every type has.
 *
 *   Sort              the type's identity; borrowed
 *   Retain            adds one reference, atomically; aborts for null
 *   Release           gives up one reference, atomically, and frees the object with the last one; aborts for null
 *   Obj               the object as an object of any type, without a new reference; null for null
 *   From              an object of any type as one of this type, without a new reference; null for null; aborts for an
 *                     object of another type
 *   ToString          the object's text, a new reference; aborts for null
 *   Compare           how two objects sort: negative, 0 or positive; aborts for null
 *   Equals            whether Compare returns 0; null equals only null */
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

/* Retain and Release for any object. Both abort for null. */
RT_API void rtObjRetain( RT_OBJ obj );
RT_API void rtObjRelease( RT_OBJ obj );

/* The sort that the object was made with; borrowed. Aborts for null. */
RT_API RT_SORT rtObjSort( RT_OBJ obj );

/* The object's text, a new reference; the sort's name if the type has no text. Aborts for null. */
RT_API RT_STRING rtObjToString( RT_OBJ obj );

/* How two objects sort: negative, 0 or positive. Null sorts before every object. If a type has no order of its own,
 * its objects are equal only to themselves. Objects of such a type, and objects of different types, sort in an
 * unspecified order that stays the same while they live. */
RT_API int64_t rtObjCompare( RT_OBJ objA, RT_OBJ objB );

/* For the libraries above. ObjCreate makes an object of that many bytes, header included, with the count 1 and nothing
 * yet after the header. ObjFree ends an object whose count has reached 0. */
RT_API RT_OBJ rt___ObjCreate( int64_t size, RT_SORT sort );
RT_API void rt___ObjFree( RT_OBJ obj );

/* For the libraries above: operations on the fields of any object. The fields are words of eight bytes after the header;
 * refs has a bit for each word that is a reference or null, the lowest for the first. ObjClearFields gives up the
 * references, in order, and makes them null. ObjCopy makes a copy of an object of that many bytes; ObjOwn makes one in
 * exchange for the caller's reference. */
RT_API void rt___ObjClearFields( RT_OBJ obj, uint64_t refs );
RT_API RT_OBJ rt___ObjCopy( RT_OBJ obj, int64_t size, uint64_t refs );
RT_API RT_OBJ rt___ObjOwn( RT_OBJ obj, int64_t size, uint64_t refs );

/* For the libraries above: the free blocks of the thread; null until the thread frees its first block, and again
 * after the thread has ended. */
extern RT_API RT_THREAD_LOCAL struct RT_BLOCK_LISTS_ *rt___blockLists;

/* For tests: the number of objects made at run time that exist now, in all threads; -1 if the library does not count
 * them, as in release builds. */
RT_API int64_t rtObjsAlive( void );

/* Writes one line to standard error and ends the process. The line has the source unit, the line number, the message
 * unless it is null, and the condition that did not hold.
 *
 * A program may define this function itself, with C linkage. Its definition then serves all libraries and runs on the
 * thread that broke the contract. The texts stay valid as long as the libraries are loaded. The function must not
 * return, but it may leave by longjmp or, in C++, by an exception. No destructor of the libraries runs on the way: what
 * the call had allocated and the references that it had taken are never released. No lock is held, and all objects stay
 * usable, but an object whose address was passed to the call may already be partly changed. After the message
 * "out of memory", which can come in the middle of a change, the program must not call the libraries again. */
RT_NORETURN RT_API void rt___Abort( const char *message, const char *file, int64_t line,
                                    const char *expression );

RT_END

#endif
