// Stores: dictionaries whose values are strings and stores.
#include "rt/rt_store.h"

#include "rt/rt_dict.h"
#include "rt/rt_frame.hpp"

using rt::Ref;

struct RT_STORE_
{
    RT_OBJECT object;
    Ref<RT_DICT> entries; // never null

    static auto fields( auto &self ) { return std::tie( self.entries ); }
};

static void freeFunc( RT_OBJ obj ) { rt::releaseFields( rtStoreFrom( obj ) ); }

static int64_t compareFunc( RT_OBJ objA, RT_OBJ objB )
{
    return rt::compareFields( rtStoreFrom( objA ), rtStoreFrom( objB ) );
}

RT_DEFINE_STDFUNCS( rt, nullptr, Store, RT_STORE, freeFunc, compareFunc, nullptr )

static Ref<RT_STRING> nameFrom( const char *name, int64_t length )
{
    return rt::adopt( rtStringCreateFromCstr( name, length ) );
}

// The entry under a name, or null; a new reference.
static Ref<RT_OBJ> entry( RT_STORE store, const char *name, int64_t length )
{
    RT_ASSERT( store );
    return rt::adopt( rtDictStringKey( store->entries.get(), nameFrom( name, length ).get() ) );
}

// The object if it is of the sort, else null.
static RT_OBJ ofSort( Ref<RT_OBJ> obj, RT_SORT sort )
{
    return obj && rtObjSort( obj.get() ) == sort ? obj.take() : nullptr;
}

static void set( RT_STORE *store, const Ref<RT_STRING> &name, RT_OBJ value )
{
    RT_ASSERT( store );
    RT_ASSERT( *store );
    RT_ASSERT( value );
    // Held, so that a store that is set into itself is another one by then.
    Ref<RT_OBJ> held = rt::share( value );
    rtDictSetStringKey( rt::own( store )->entries.address(), name.get(), value );
}

RT_STORE rtStoreCreate( void )
{
    RT_STORE store = rt::create<RT_STORE_>( rtStoreSort() );
    store->entries = rt::adopt( rtDictCreate() );
    return store;
}

int64_t rtStoreLength( RT_STORE store )
{
    RT_ASSERT( store );
    return rtDictLength( store->entries.get() );
}

RT_STRING rtStoreValueCstr( RT_STORE store, const char *name, int64_t length )
{
    return rtStringFrom( ofSort( entry( store, name, length ), rtStringSort() ) );
}

RT_STORE rtStoreStoreCstr( RT_STORE store, const char *name, int64_t length )
{
    return rtStoreFrom( ofSort( entry( store, name, length ), rtStoreSort() ) );
}

RT_STRING rtStoreValueAt( RT_STORE store, int64_t index )
{
    RT_ASSERT( store );
    return rtStringFrom(
        ofSort( rt::adopt( rtDictValueAt( store->entries.get(), index ) ), rtStringSort() ) );
}

void rtStoreSetValueCstr( RT_STORE *store, const char *name, int64_t length, RT_STRING value )
{
    set( store, nameFrom( name, length ), rtStringObj( value ) );
}

void rtStoreSetStoreCstr( RT_STORE *store, const char *name, int64_t length, RT_STORE value )
{
    set( store, nameFrom( name, length ), rtStoreObj( value ) );
}

void rtStoreSetValueFormatCstr( RT_STORE *store, const char *format, int64_t length, RT_STRING value, ... )
{
    va_list args;
    va_start( args, value );
    Ref<RT_STRING> name = rt::adopt( rtStringCreateFromFormatCstrArgList( format, length, args ) );
    va_end( args );
    set( store, name, rtStringObj( value ) );
}
