/* Dictionaries from strings to objects. They enumerate in the order in which the keys were first set: replacing a value
 * keeps its place, and removing a key keeps the order of the others. Lookup, insertion and deletion are O(1) on average
 * for any keys, since each process seeds the hash anew.
 *
 * A dictionary that others hold too is never changed: functions that change a dictionary take the address of its
 * handle. Every function aborts for a null key or value. */
#ifndef RT_RT_DICT_H
#define RT_RT_DICT_H

#include "rt/rt_vector.h"

RT_BEGIN

/* Two dictionaries are equal when they have the same keys with equal values, in whatever order they enumerate. They
 * sort by their keys and values, taken in the order of the keys. The text is "key: value" for each entry, separated by
 * ", ". */
RT_OBJECT_TYPE( RT_API, rtDict, RT_DICT )

/* For the libraries above: the static empty dictionary. */
extern RT_API const struct RT_DICT_ rt___emptyDict;

/* An empty dictionary, a new reference. */
RT_API RT_DICT rtDictCreate( void );

/* The number of keys. */
RT_API int64_t rtDictLength( RT_DICT dict );

/* The value under the key, a new reference, or null if there is none; whether there is one. */
RT_API RT_OBJ rtDictStringKey( RT_DICT dict, RT_STRING key );
RT_API RT_BOOL rtDictHasStringKey( RT_DICT dict, RT_STRING key );

/* Set puts a value under the key, in place of any that is there; the dictionary retains the key and the value. Del
 * removes the key if it is there, and Clear removes all keys. */
RT_API void rtDictSetStringKey( RT_DICT *dict, RT_STRING key, RT_OBJ value );
RT_API void rtDictDelStringKey( RT_DICT *dict, RT_STRING key );
RT_API void rtDictClear( RT_DICT *dict );

/* The key and the value at the index in the enumeration, new references. Both abort unless the index is from 0 to the
 * length less 1. Walking through all entries by index, forwards or backwards, costs O(length), even after deletions. */
RT_API RT_STRING rtDictKeyAt( RT_DICT dict, int64_t index );
RT_API RT_OBJ rtDictValueAt( RT_DICT dict, int64_t index );

/* New vectors of all keys and of all values, in the order of enumeration. */
RT_API RT_VECTOR rtDictKeysVector( RT_DICT dict );
RT_API RT_VECTOR rtDictValuesVector( RT_DICT dict );

/* For the libraries above: the index of the key in the enumeration, or -1 if it is not there. Only for dictionaries
 * from which no key has been removed. */
RT_API int64_t rt___DictIndex( RT_DICT dict, RT_STRING key );

RT_END

#endif
