/* Hierarchical stores: ordered named entries, each a text or another store. A store that others hold too is never
 * changed: functions that change a store take the address of its handle. A name is 8-bit characters with their number,
 * or -1 for up to the zero. Every function aborts for a null handle or a null entry. */
#ifndef RT_RT_STORE_H
#define RT_RT_STORE_H

#include "rt/rt_string.h"

RT_BEGIN

/* Stores compare as maps from names to entries, as dictionaries do. */
RT_OBJECT_TYPE( RT_API, rtStore, RT_STORE )

/* An empty store, a new reference. */
RT_API RT_STORE rtStoreCreate( void );

/* The number of entries. They are in the order in which their names were first set. */
RT_API int64_t rtStoreLength( RT_STORE store );

/* The text or the store of that name; a new reference, or null if there is no entry of that name and kind. */
RT_API RT_STRING rtStoreValueCstr( RT_STORE store, const char *name, int64_t length );
RT_API RT_STORE rtStoreStoreCstr( RT_STORE store, const char *name, int64_t length );

/* The text at the index, a new reference, or null if a store is there. Aborts unless the index is valid. */
RT_API RT_STRING rtStoreValueAt( RT_STORE store, int64_t index );

/* Sets a text or a store under the name, in place of any entry that is there. SetValueFormat makes the name from a
 * format (see rt_string.h), whose arguments follow the value. */
RT_API void rtStoreSetValueCstr( RT_STORE *store, const char *name, int64_t length, RT_STRING value );
RT_API void rtStoreSetStoreCstr( RT_STORE *store, const char *name, int64_t length, RT_STORE value );
RT_API void rtStoreSetValueFormatCstr( RT_STORE *store, const char *format, int64_t length, RT_STRING value,
                                       ... );

RT_END

#endif
