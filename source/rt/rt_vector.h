/* Vectors of objects. A vector that others hold too is never changed: functions that change a vector take the address
 * of its handle. Every function aborts for an index out of range and for a null element. */
#ifndef RT_RT_VECTOR_H
#define RT_RT_VECTOR_H

#include "rt/rt_string.h"

RT_BEGIN

/* Vectors compare element by element, then by length. Their text is the elements' texts, separated by ", ". */
RT_OBJECT_TYPE( RT_API, rtVector, RT_VECTOR )

/* An empty vector, and an empty vector with room for that many elements; each a new reference. */
RT_API RT_VECTOR rtVectorCreate( void );
RT_API RT_VECTOR rtVectorCreateWithCapacity( int64_t capacity );

/* The number of elements. */
RT_API int64_t rtVectorLength( RT_VECTOR vector );

/* The element at the index, a new reference. */
RT_API RT_OBJ rtVectorObjAt( RT_VECTOR vector, int64_t index );

/* Whether every element is of the sort; true for an empty vector. */
RT_API RT_BOOL rtVectorContainsOnly( RT_VECTOR vector, RT_SORT sort );

/* Append adds an element at the end, Prepend at the front, Insert before the element at the index or, if the index is
 * the length, at the end. The vector retains the element. Append is amortised O(1). */
RT_API void rtVectorAppend( RT_VECTOR *vector, RT_OBJ obj );
RT_API void rtVectorAppendString( RT_VECTOR *vector, RT_STRING string );
RT_API void rtVectorPrependString( RT_VECTOR *vector, RT_STRING string );
RT_API void rtVectorInsertString( RT_VECTOR *vector, int64_t index, RT_STRING string );

/* Replaces the element at the index. */
RT_API void rtVectorSetStringAt( RT_VECTOR *vector, int64_t index, RT_STRING string );

/* DelAt removes the element at the index, DelLeading the first count elements, Clear all elements. */
RT_API void rtVectorDelAt( RT_VECTOR *vector, int64_t index );
RT_API void rtVectorDelLeading( RT_VECTOR *vector, int64_t count );
RT_API void rtVectorClear( RT_VECTOR *vector );

/* For the libraries above. InsertTaken inserts an object at the index, or at the end for -1, and takes over the
 * caller's reference to it. ObjBorrowed returns the element at the index, borrowed. */
RT_API void rt___VectorInsertTaken( RT_VECTOR *vector, int64_t index, RT_OBJ obj );
RT_API RT_OBJ rt___VectorObjBorrowed( RT_VECTOR vector, int64_t index );

RT_END

#endif
