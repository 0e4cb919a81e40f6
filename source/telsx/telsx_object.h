/* All types: what they have in common, which every public header needs. */
#ifndef TELSX_TELSX_OBJECT_H
#define TELSX_TELSX_OBJECT_H

#include "rt/rt.h"

/* The handle of an object type and the functions that every type has: those of RT_OBJECT_TYPE
 * (rt/rt_object.h) and
 *
 *   CreateFrom   a new object with the same fields, which shares what they refer to; aborts for null
 *
 * All other functions follow these patterns, unless a type's header says otherwise:
 *
 *   Create       a new object, which the caller releases
 *   getters      return a field: an object as a new reference, or null if absent; a number by value, or -1 if absent
 *   Has          whether the field is present
 *   Set, Del     change the object of the handle, or put a changed copy there if others hold the object too. Set
 *                retains its argument, which stays the caller's. Both abort for a null handle and for a null address
 *   Cstr, Wcstr  take a text as 8-bit characters (each one code point) or as wide characters, with a length, where -1
 *                means up to the zero
 *
 * A function that takes a value aborts unless the element's Ok function accepts it: text from outside must be checked
 * with that function first. */
#define TELSX_OBJECT( NAME, SORT )                      \
    RT_OBJECT_TYPE( RT_API, telsx##NAME, TELSX_##SORT ) \
    RT_API TELSX_##SORT telsx##NAME##CreateFrom( TELSX_##SORT source );

/* The functions in the slots of the sort record, which only the runtime calls. */
#define TELSX_FREE_FUNC( NAME ) RT_API void telsx___##NAME##FreeFunc( RT_OBJ obj );
#define TELSX_COMPARE_FUNC( NAME ) RT_API int64_t telsx___##NAME##CompareFunc( RT_OBJ objA, RT_OBJ objB );
#define TELSX_TO_STRING_FUNC( NAME ) RT_API RT_STRING telsx___##NAME##ToStringFunc( RT_OBJ obj );

/* A value of a list header, or an address: the functions of TELSX_OBJECT, and what such a header needs of the value.
 * TELSX_OBJECT is not used here, because the preprocessor expands what one macro hands on to another, and other libraries
 * define names such as ACCEPT.
 *
 *   CreateFrom        creates an object with the same fields, which shares what they refer to; aborts for null
 *   Encode            the value's text, a new reference; aborts for null
 *   TryDecode         decodes one whole value: a new reference, or null for bad text; aborts for a negative length, and
 *                     for null unless the length is 0
 *   FreeFunc          the function for the slot of the sort record */
#define TELSX_VALUE_OBJECT( NAME, SORT )                                                 \
    RT_OBJECT_TYPE( RT_API, telsx##NAME, TELSX_##SORT )                                  \
    RT_API TELSX_##SORT telsx##NAME##CreateFrom( TELSX_##SORT source );                  \
    RT_API RT_STRING telsx___##NAME##Encode( TELSX_##SORT value );                       \
    RT_API TELSX_##SORT telsx___##NAME##TryDecode( const RT_CHAR *chs, int64_t length ); \
    RT_API void telsx___##NAME##FreeFunc( RT_OBJ obj );

#endif
