/* All types: what they share, which every public header needs. */
#ifndef TELSX_TELSX_OBJECT_H
#define TELSX_TELSX_OBJECT_H

#include "rt/rt.h"

/* The handle of an object type and the functions that every type has: those of RT_OBJECT_TYPE
 * (rt/rt_object.h) and
 *
 *   CreateFrom   a new object with the same fields, which shares what they refer to; null aborts
 *
 * The shapes of all other functions, where a type's header says nothing else:
 *
 *   Create       a new object, which the caller releases
 *   getters      a field: objects as a new reference, null if absent; numbers by value, -1 if absent
 *   Has          whether the field is present
 *   Set, Del     change the object behind the handle, or put a changed copy there if others hold the object too; Set
 *                retains its argument, which stays the caller's. A null handle aborts, and so does a null address
 *   Cstr, Wcstr  take a text as 8-bit characters (each is one code point) or as wide characters with a length, of
 *                which -1 means up to the zero
 *
 * A value that fails the element's Ok function aborts: who has text from outside asks first. */
#define TELSX_OBJECT( NAME, SORT )                      \
    RT_OBJECT_TYPE( RT_API, telsx##NAME, TELSX_##SORT ) \
    RT_API TELSX_##SORT telsx##NAME##CreateFrom( TELSX_##SORT source );

/* The functions behind the slots of the sort record, which only the runtime calls. */
#define TELSX_FREE_FUNC( NAME ) RT_API void telsx___##NAME##FreeFunc( RT_OBJ obj );
#define TELSX_COMPARE_FUNC( NAME ) RT_API int64_t telsx___##NAME##CompareFunc( RT_OBJ objA, RT_OBJ objB );
#define TELSX_TO_STRING_FUNC( NAME ) RT_API RT_STRING telsx___##NAME##ToStringFunc( RT_OBJ obj );

/* A value of a list header, and what such a header needs of it:
 *
 *   Encode            the value's text, a new reference; null aborts
 *   TryDecode         one whole value: a new reference, or null for bad text. A negative length aborts, and so does null
 *                     with a length
 *   FreeFunc          what the sort record's slot calls */
#define TELSX_VALUE_OBJECT( NAME, SORT )                                                 \
    TELSX_OBJECT( NAME, SORT )                                                           \
    RT_API RT_STRING telsx___##NAME##Encode( TELSX_##SORT value );                       \
    RT_API TELSX_##SORT telsx___##NAME##TryDecode( const RT_CHAR *chs, int64_t length ); \
    RT_API void telsx___##NAME##FreeFunc( RT_OBJ obj );

#endif
