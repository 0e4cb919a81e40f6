// Dictionaries. The entries stand in an array in the order in which their keys came; a table of open
// addressing leads from a key's hash to its entry. A deleted entry stays in the array without a key until the
// array is full; then the living ones move together. Dictionaries of a few entries do without the table.
#include "rt/rt_dict.h"

#include <sys/random.h>

#include <algorithm>
#include <bit>

#include "rt/rt_memory.hpp"
#include "rt/rt_text.hpp"

using rt::Ref;
using rt::Text;

namespace
{

struct Entry
{
    uint64_t hash;
    RT_STRING key; // null in a deleted entry
    RT_OBJ value;
};

constexpr int64_t leastCapacity = 4, mostWithoutTable = 8;

} // namespace

struct RT_DICT_
{
    RT_OBJECT object;
    Entry *entries;
    int64_t capacity;  // of the array
    int64_t used;      // entries in the array, deleted ones included
    int64_t length;    // entries that live
    uint32_t *table;   // the number of an entry plus 1, or 0; null for few entries
    int64_t tableSize; // a power of 2
    // Where the enumeration of an array with deleted entries was last: the index and the entry's number, 32
    // bits each. It only saves walking; readers in several threads may all move it.
    uint64_t cursor;
};

// A polynomial in the code points, two in a word, over the integers modulo 2^61 - 1, at a point that is drawn
// anew in each process: whoever chooses the names without knowing it makes two of them collide with a
// probability of at most their length over 2^61.
namespace
{

struct Seed
{
    uint64_t point, spread;
};

constexpr uint64_t prime = ( uint64_t{ 1 } << 61 ) - 1;

Seed makeSeed()
{
    Seed seed = {};
    RT_CHECK( getrandom( &seed, sizeof seed, 0 ) == sizeof seed, "no random numbers", "getrandom" );
    return { seed.point % ( prime - 2 ) + 2, seed.spread | 1 };
}

uint64_t timesPoint( uint64_t value, uint64_t point )
{
    __extension__ using Wide = unsigned __int128;
    Wide product = static_cast<Wide>( value ) * point;
    return ( static_cast<uint64_t>( product ) & prime ) + static_cast<uint64_t>( product >> 61 );
}

uint64_t hashOf( Text text )
{
    static const Seed seed = makeSeed();
    uint64_t hash = static_cast<uint64_t>( text.length );
    for ( int64_t i = 0; i < text.length; i += 2 )
    {
        uint64_t second = i + 1 < text.length ? text.chs[i + 1] : 0;
        uint64_t word = text.chs[i] | second << 32;
        hash = timesPoint( hash, seed.point ) + ( word & prime ) + ( word >> 61 );
        hash = ( hash & prime ) + ( hash >> 61 );
    }
    return ( hash >= prime ? hash - prime : hash ) * seed.spread;
}

} // namespace

static bool matches( const Entry &entry, uint64_t hash, Text key )
{
    return entry.hash == hash && entry.key && rtStringEqualsChars( entry.key, key.chs, key.length );
}

// The high bits of the hash are the good ones.
static uint64_t firstSlot( RT_DICT dict, uint64_t hash )
{
    return hash >> ( 64 - std::countr_zero( static_cast<uint64_t>( dict->tableSize ) ) );
}

// The living entry of the key, or null.
static Entry *find( RT_DICT dict, uint64_t hash, Text key )
{
    if ( !dict->table )
    {
        Entry *end = dict->entries + dict->used;
        Entry *at = std::find_if( dict->entries, end,
                                  [&]( const Entry &entry ) { return matches( entry, hash, key ); } );
        return at == end ? nullptr : at;
    }
    uint64_t mask = static_cast<uint64_t>( dict->tableSize ) - 1;
    for ( uint64_t slot = firstSlot( dict, hash ); dict->table[slot]; slot = ( slot + 1 ) & mask )
        if ( Entry &entry = dict->entries[dict->table[slot] - 1]; matches( entry, hash, key ) )
            return &entry;
    return nullptr;
}

static Entry *find( RT_DICT dict, RT_STRING key )
{
    RT_ASSERT( dict );
    RT_ASSERT( key );
    Text text = rt::textOf( key );
    return dict->length ? find( dict, hashOf( text ), text ) : nullptr;
}

// Takes a slot that is free, or that leads to a deleted entry.
static void enterInTable( RT_DICT dict, int64_t number )
{
    uint64_t mask = static_cast<uint64_t>( dict->tableSize ) - 1;
    uint64_t slot = firstSlot( dict, dict->entries[number].hash );
    while ( dict->table[slot] && dict->entries[dict->table[slot] - 1].key )
        slot = ( slot + 1 ) & mask;
    dict->table[slot] = static_cast<uint32_t>( number + 1 );
}

// Moves the living entries of one dictionary, without their references, into a new array of another or the
// same.
static void moveEntries( RT_DICT from, RT_DICT to, int64_t capacity )
{
    RT_CHECK( capacity < UINT32_MAX, "out of memory", "capacity" );
    Entry *entries = rt::allocate<Entry>( capacity );
    Entry *end = std::copy_if( from->entries, from->entries + from->used, entries,
                               []( const Entry &entry ) { return entry.key != nullptr; } );
    if ( from == to )
    {
        std::free( from->entries );
        std::free( from->table );
    }
    to->entries = entries;
    to->capacity = capacity;
    to->used = to->length = end - entries;
    to->table = nullptr;
    to->tableSize = 0;
    to->cursor = 0;
    if ( capacity <= mostWithoutTable )
        return;
    to->tableSize = static_cast<int64_t>( std::bit_ceil( static_cast<uint64_t>( capacity ) * 2 ) );
    to->table = rt::allocate<uint32_t>( to->tableSize );
    std::fill_n( to->table, to->tableSize, 0U );
    for ( int64_t i = 0; i < to->used; ++i )
        enterInTable( to, i );
}

static void freeFunc( RT_OBJ obj )
{
    RT_DICT dict = rtDictFrom( obj );
    std::for_each( dict->entries, dict->entries + dict->used,
                   []( const Entry &entry )
                   {
                       if ( entry.key )
                       {
                           rt::release( rt::asObj( entry.key ) );
                           rt::release( entry.value );
                       }
                   } );
    std::free( dict->entries );
    std::free( dict->table );
}

// All living entries in the order of their keys.
static Ref<RT_VECTOR> sortedKeys( RT_DICT dict )
{
    Entry *sorted = rt::allocate<Entry>( dict->length );
    Entry *end = std::copy_if( dict->entries, dict->entries + dict->used, sorted,
                               []( const Entry &entry ) { return entry.key != nullptr; } );
    std::sort( sorted, end,
               []( const Entry &a, const Entry &b ) { return rtStringCompare( a.key, b.key ) < 0; } );
    Ref<RT_VECTOR> keys = rt::adopt( rtVectorCreateWithCapacity( dict->length ) );
    std::for_each( sorted, end,
                   [&]( const Entry &entry ) { rtVectorAppendString( keys.address(), entry.key ); } );
    std::free( sorted );
    return keys;
}

static bool equalMaps( RT_DICT a, RT_DICT b )
{
    return a->length == b->length
           && std::all_of( a->entries, a->entries + a->used,
                           [b]( const Entry &entry )
                           {
                               if ( !entry.key )
                                   return true;
                               Entry *other = find( b, entry.hash, rt::textOf( entry.key ) );
                               return other && rtObjCompare( entry.value, other->value ) == 0;
                           } );
}

static int64_t compareFunc( RT_OBJ objA, RT_OBJ objB )
{
    RT_DICT a = rtDictFrom( objA ), b = rtDictFrom( objB );
    if ( equalMaps( a, b ) )
        return 0;
    Ref<RT_VECTOR> keysA = sortedKeys( a ), keysB = sortedKeys( b );
    for ( int64_t i = 0; i < a->length && i < b->length; ++i )
    {
        Ref<RT_OBJ> keyA = rt::adopt( rtVectorObjAt( keysA.get(), i ) ),
                    keyB = rt::adopt( rtVectorObjAt( keysB.get(), i ) );
        if ( int64_t order = rtObjCompare( keyA.get(), keyB.get() ) )
            return order;
        RT_STRING key = rtStringFrom( keyA.get() );
        if ( int64_t order = rtObjCompare( find( a, key )->value, find( b, key )->value ) )
            return order;
    }
    return a->length < b->length ? -1 : 1;
}

static RT_STRING toStringFunc( RT_OBJ obj )
{
    RT_DICT dict = rtDictFrom( obj );
    Ref<RT_STRING> text = rt::adopt( rtStringCreate() );
    for ( int64_t i = 0; i < dict->length; ++i )
    {
        Ref<RT_OBJ> value = rt::adopt( rtDictValueAt( dict, i ) );
        rtStringAppendFormatCstr( text.address(), i ? ", %~s: %~s" : "%~s: %~s", -1, rtDictKeyAt( dict, i ),
                                  rtObjToString( value.get() ) );
    }
    return text.take();
}

RT_DEFINE_STDFUNCS( rt, nullptr, Dict, RT_DICT, freeFunc, compareFunc, toStringFunc )

// One empty dictionary serves all; the first change makes another.
constexpr RT_DICT_ rt___emptyDict = {
    { &rt___sort_RT_DICT, RT_COUNT_IMMORTAL, 0 }, nullptr, 0, 0, 0, nullptr, 0, 0
};

RT_DICT rtDictCreate( void ) { return const_cast<RT_DICT>( &rt___emptyDict ); }

// The dictionary behind the handle, made private to it.
static RT_DICT own( RT_DICT *handle )
{
    RT_ASSERT( handle );
    RT_ASSERT( *handle );
    RT_DICT old = *handle;
    if ( rt::shared( rt::asObj( old ) ) )
    {
        *handle = reinterpret_cast<RT_DICT>( rt___ObjCreate( sizeof( RT_DICT_ ), rtDictSort() ) );
        moveEntries( old, *handle, std::max( old->length, leastCapacity ) );
        std::for_each( ( *handle )->entries, ( *handle )->entries + old->length,
                       []( const Entry &entry )
                       {
                           rt::retain( rt::asObj( entry.key ) );
                           rt::retain( entry.value );
                       } );
        rtDictRelease( old );
    }
    return *handle;
}

int64_t rtDictLength( RT_DICT dict )
{
    RT_ASSERT( dict );
    return dict->length;
}

int64_t rt___DictIndex( RT_DICT dict, RT_STRING key )
{
    Entry *entry = find( dict, key );
    return entry ? entry - dict->entries : -1;
}

RT_OBJ rtDictStringKey( RT_DICT dict, RT_STRING key )
{
    Entry *entry = find( dict, key );
    return entry ? rt::share( entry->value ).take() : nullptr;
}

RT_BOOL rtDictHasStringKey( RT_DICT dict, RT_STRING key ) { return find( dict, key ) != nullptr; }

void rtDictSetStringKey( RT_DICT *handle, RT_STRING key, RT_OBJ value )
{
    RT_ASSERT( key );
    RT_ASSERT( value );
    rt::retain( value );
    RT_DICT dict = own( handle );
    Text text = rt::textOf( key );
    uint64_t hash = hashOf( text );
    if ( Entry *entry = find( dict, hash, text ) )
    {
        auto old = rt::adopt( std::exchange( entry->value, value ) );
        return;
    }
    if ( dict->used == dict->capacity )
        moveEntries( dict, dict, std::max( dict->length * 2, leastCapacity ) );
    dict->entries[dict->used] = { hash, rt::share( key ).take(), value };
    if ( dict->table )
        enterInTable( dict, dict->used );
    ++dict->used;
    ++dict->length;
}

void rtDictDelStringKey( RT_DICT *handle, RT_STRING key )
{
    RT_ASSERT( handle );
    if ( !find( *handle, key ) )
        return;
    RT_DICT dict = own( handle );
    Entry *entry = find( dict, key );
    auto oldKey = rt::adopt( std::exchange( entry->key, nullptr ) );
    auto oldValue = rt::adopt( std::exchange( entry->value, nullptr ) );
    --dict->length;
    if ( static_cast<uint64_t>( entry - dict->entries ) < ( dict->cursor & UINT32_MAX ) )
        dict->cursor -= uint64_t{ 1 } << 32;
    // As many gaps as pay for closing them, so that what is left costs no more than it would without them.
    if ( dict->used > dict->length * 2 + leastCapacity )
        moveEntries( dict, dict, std::max( dict->length * 2, leastCapacity ) );
}

void rtDictClear( RT_DICT *dict )
{
    RT_ASSERT( dict );
    RT_ASSERT( *dict );
    auto old = rt::adopt( std::exchange( *dict, rtDictCreate() ) );
}

// The living entry at the index of the enumeration.
static const Entry &entryAt( RT_DICT dict, int64_t index )
{
    RT_ASSERT( dict );
    RT_ASSERT( index >= 0 && index < dict->length );
    if ( dict->used == dict->length )
        return dict->entries[index];
    std::atomic_ref cursor( dict->cursor );
    uint64_t last = cursor.load( std::memory_order_relaxed );
    auto at = static_cast<int64_t>( last >> 32 ), number = static_cast<int64_t>( last & UINT32_MAX );
    if ( index < at / 2 )
        at = number = 0;
    while ( at > index )
        at -= dict->entries[--number].key != nullptr;
    while ( !dict->entries[number].key || at < index )
        at += dict->entries[number++].key != nullptr;
    cursor.store( static_cast<uint64_t>( at ) << 32 | static_cast<uint64_t>( number ),
                  std::memory_order_relaxed );
    return dict->entries[number];
}

RT_STRING rtDictKeyAt( RT_DICT dict, int64_t index )
{
    return rt::share( entryAt( dict, index ).key ).take();
}

RT_OBJ rtDictValueAt( RT_DICT dict, int64_t index )
{
    return rt::share( entryAt( dict, index ).value ).take();
}

RT_VECTOR rtDictKeysVector( RT_DICT dict )
{
    RT_ASSERT( dict );
    Ref<RT_VECTOR> keys = rt::adopt( rtVectorCreateWithCapacity( dict->length ) );
    for ( int64_t i = 0; i < dict->used; ++i )
        if ( dict->entries[i].key )
            rtVectorAppendString( keys.address(), dict->entries[i].key );
    return keys.take();
}

RT_VECTOR rtDictValuesVector( RT_DICT dict )
{
    RT_ASSERT( dict );
    Ref<RT_VECTOR> values = rt::adopt( rtVectorCreateWithCapacity( dict->length ) );
    for ( int64_t i = 0; i < dict->used; ++i )
        if ( dict->entries[i].key )
            rtVectorAppend( values.address(), dict->entries[i].value );
    return values.take();
}
