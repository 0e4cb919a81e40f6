/* Vectors of objects. A vector that others hold too is never changed; what changes one takes the address of
 * the handle. An index out of range aborts everywhere, and so does a null element. */
#ifndef RT_RT_VECTOR_H
#define RT_RT_VECTOR_H

#include "rt/rt_string.h"

RT_BEGIN

/* Vectors compare element by element, then by length; their text is the elements' texts with ", " between. */
RT_OBJECT_TYPE( RT_API, rtVector, RT_VECTOR )

/* A vector without elements, and one with room for that many; each a new reference. */
RT_API RT_VECTOR rtVectorCreate( void );
RT_API RT_VECTOR rtVectorCreateWithCapacity( int64_t capacity );

/* The number of elements. */
RT_API int64_t rtVectorLength( RT_VECTOR vector );

/* The element at the index, a new reference. */
RT_API RT_OBJ rtVectorObjAt( RT_VECTOR vector, int64_t index );

/* Whether every element is of the sort; true for an empty vector. */
RT_API RT_BOOL rtVectorContainsOnly( RT_VECTOR vector, RT_SORT sort );

/* Adds an element, which the vector retains: at the end, at the front, in front of the element at the index
 * (the length as the index means the end). Append is amortised O(1). */
RT_API void rtVectorAppend( RT_VECTOR *vector, RT_OBJ obj );
RT_API void rtVectorAppendString( RT_VECTOR *vector, RT_STRING string );
RT_API void rtVectorPrependString( RT_VECTOR *vector, RT_STRING string );
RT_API void rtVectorInsertString( RT_VECTOR *vector, int64_t index, RT_STRING string );

/* Replaces an element. */
RT_API void rtVectorSetStringAt( RT_VECTOR *vector, int64_t index, RT_STRING string );

/* Takes out the element at the index, the first count elements, all. */
RT_API void rtVectorDelAt( RT_VECTOR *vector, int64_t index );
RT_API void rtVectorDelLeading( RT_VECTOR *vector, int64_t count );
RT_API void rtVectorClear( RT_VECTOR *vector );

/* For the libraries above: puts an object in at the index, or behind all others for -1, and takes over the caller's
 * reference to it; the element at the index, borrowed. */
RT_API void rt___VectorInsertTaken( RT_VECTOR *vector, int64_t index, RT_OBJ obj );
RT_API RT_OBJ rt___VectorObjBorrowed( RT_VECTOR vector, int64_t index );

RT_END

#endif
