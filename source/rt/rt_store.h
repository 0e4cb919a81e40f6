/* Hierarchical stores: named entries, in order, of which each is a text or a store. A store that others hold
 * too is never changed; what changes one takes the address of the handle. Names are 8-bit characters with
 * their length, -1 meaning up to the zero. Null handles and null entries abort. */
#ifndef RT_RT_STORE_H
#define RT_RT_STORE_H

#include "rt/rt_string.h"

RT_BEGIN

/* Stores compare as maps from names to entries, as dictionaries do. */
RT_OBJECT_TYPE( RT_API, rtStore, RT_STORE )

/* A store without entries, a new reference. */
RT_API RT_STORE rtStoreCreate( void );

/* The number of entries, which stand in the order in which their names were first set. */
RT_API int64_t rtStoreLength( RT_STORE store );

/* The text, or the store, of that name; a new reference, or null if there is no entry of the name and kind.
 */
RT_API RT_STRING rtStoreValueCstr( RT_STORE store, const char *name, int64_t length );
RT_API RT_STORE rtStoreStoreCstr( RT_STORE store, const char *name, int64_t length );

/* The text at the position, a new reference, or null if a store is there. A position outside aborts. */
RT_API RT_STRING rtStoreValueAt( RT_STORE store, int64_t index );

/* Sets a text or a store under the name, in the place of the entry that is there. SetValueFormat makes the
 * name from a format (see rt_string.h), whose arguments stand behind the value. */
RT_API void rtStoreSetValueCstr( RT_STORE *store, const char *name, int64_t length, RT_STRING value );
RT_API void rtStoreSetStoreCstr( RT_STORE *store, const char *name, int64_t length, RT_STORE value );
RT_API void rtStoreSetValueFormatCstr( RT_STORE *store, const char *format, int64_t length, RT_STRING value,
                                       ... );

RT_END

#endif
