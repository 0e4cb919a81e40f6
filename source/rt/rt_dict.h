/* Dictionaries from strings to objects. They enumerate in the order in which the keys were first set: a value
 * that is replaced keeps its place, and taking a key out keeps the order of the others. Lookup, insertion and
 * deletion are O(1) on average whatever the keys are, since the hash is seeded anew in each process.
 *
 * A dictionary that others hold too is never changed; what changes one takes the address of the handle. Null
 * keys and values abort. */
#ifndef RT_RT_DICT_H
#define RT_RT_DICT_H

#include "rt/rt_vector.h"

RT_BEGIN

/* Two dictionaries are equal when the same keys lead to equal values, in whatever order they enumerate. Their
 * order is that of their keys and values in the order of the keys. The text is "key: value" of each entry
 * with
 * ", " between. */
RT_OBJECT_TYPE( RT_API, rtDict, RT_DICT )

/* For the libraries above: the dictionary without entries, which exists from load on. */
extern RT_API const struct RT_DICT_ rt___emptyDict;

/* A dictionary without entries, a new reference. */
RT_API RT_DICT rtDictCreate( void );

/* The number of keys. */
RT_API int64_t rtDictLength( RT_DICT dict );

/* The value under the key, a new reference, or null; whether there is one. */
RT_API RT_OBJ rtDictStringKey( RT_DICT dict, RT_STRING key );
RT_API RT_BOOL rtDictHasStringKey( RT_DICT dict, RT_STRING key );

/* Puts a value under the key, in the place of the one that is there; takes out the key, if it is there; takes
 * out all. The dictionary retains the key and the value. */
RT_API void rtDictSetStringKey( RT_DICT *dict, RT_STRING key, RT_OBJ value );
RT_API void rtDictDelStringKey( RT_DICT *dict, RT_STRING key );
RT_API void rtDictClear( RT_DICT *dict );

/* The entry at the index of the enumeration, from 0 to the length less one, else they abort; new references.
 * Going through all entries by index, forwards or backwards, costs O(length), also after deletions. */
RT_API RT_STRING rtDictKeyAt( RT_DICT dict, int64_t index );
RT_API RT_OBJ rtDictValueAt( RT_DICT dict, int64_t index );

/* New vectors of all keys and of all values, in the order of the enumeration. */
RT_API RT_VECTOR rtDictKeysVector( RT_DICT dict );
RT_API RT_VECTOR rtDictValuesVector( RT_DICT dict );

/* For the libraries above: where the key stands in the enumeration, -1 if it isn't there; of a dictionary that no key
 * was taken out of. */
RT_API int64_t rt___DictIndex( RT_DICT dict, RT_STRING key );

RT_END

#endif
