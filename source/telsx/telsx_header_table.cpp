// The headers of a fragment.
#include "telsx/telsx_header_table.hpp"

#include <algorithm>
#include <atomic>

#include "telsx/telsx_message_header.hpp"

namespace telsx
{

static void freeFunc( RT_OBJ obj )
{
    auto *table = reinterpret_cast<HeaderTable *>( obj );
    for ( HeaderEntry &entry : table->entries )
    {
        if ( entry.name )
            rt::release( rt::asObj( entry.name ) );
        if ( entry.header )
            rt::release( rt::asObj( entry.header ) );
    }
    table->entries.clear();
    table->moreLines.clear();
    table->otherEntries.clear();
    table->bytes = {};
    table->others = {};
}

static constexpr RT_SORT_ sort = {
    RT_STATIC_OBJECT, &telsx___module, "TELSX_HEADER_TABLE", freeFunc, nullptr, nullptr, {}
};

Ref<HeaderTable *> createHeaderTable( const Ref<RT_BUFFER> &bytes )
{
    auto *table = reinterpret_cast<HeaderTable *>( rt___ObjCreate( sizeof( HeaderTable ), &sort ) );
    std::construct_at( &table->bytes, bytes );
    table->entries = {};
    table->moreLines = {};
    table->length = 0;
    std::fill( std::begin( table->known ), std::end( table->known ), -1 );
    std::construct_at( &table->others, adopt( rtDictCreate() ) );
    table->otherEntries = {};
    return adopt( table );
}

// Where the place of the name's entry is kept, or null for another name that never came.
static int64_t *placeOf( HeaderTable *table, HeaderName name )
{
    if ( name.number != -1 )
        return &table->known[name.number];
    int64_t other = rt___DictIndex( table->others.get(), name.name );
    return other == -1 ? nullptr : &table->otherEntries[other];
}

HeaderEntry *findHeader( HeaderTable *table, HeaderName name )
{
    int64_t *place = placeOf( table, name );
    return place && *place != -1 ? &table->entries[*place] : nullptr;
}

// An entry behind all others, of a name that has none, whose place it may already have.
static void append( HeaderTable *table, HeaderName name, int64_t *place, const HeaderEntry &entry )
{
    if ( place )
        *place = table->entries.length;
    else
    {
        rtDictSetStringKey( table->others.address(), name.name, rt::asObj( name.name ) );
        table->otherEntries.append( table->entries.length );
    }
    if ( table->entries.capacity == 0 )
        table->entries.reserve( 18 );
    rt::retain( rt::asObj( name.name ) );
    table->entries.append( entry );
    ++table->length;
}

void addLine( HeaderTable *table, HeaderName name, int64_t begin, int64_t length )
{
    HeaderLine line = { begin, length, -1 };
    int64_t *place = placeOf( table, name );
    if ( !place || *place == -1 )
        return append( table, name, place, { name.name, nullptr, line, -1, name.number } );
    HeaderEntry &entry = table->entries[*place];
    int64_t number = table->moreLines.length;
    table->moreLines.append( line );
    ( entry.last == -1 ? entry.first : table->moreLines[entry.last] ).next = number;
    entry.last = number;
}

Bytes lastLineOf( HeaderTable *table, const HeaderEntry &entry )
{
    return table->lineOf( entry.last == -1 ? entry.first : table->moreLines[entry.last] );
}

static Ref<TELSX_MESSAGE_HEADER> makeHeader( HeaderTable *table, const HeaderEntry &entry )
{
    Ref<RT_STRING> first = stringOf( table->lineOf( entry.first ) );
    auto header = adopt( createHeader( entry.name, first ) );
    for ( int64_t next = entry.first.next; next != -1; next = table->moreLines[next].next )
    {
        Ref<RT_STRING> line = stringOf( table->lineOf( table->moreLines[next] ) );
        rtVectorAppendString( header->lines.address(), line.get() );
    }
    return header;
}

TELSX_MESSAGE_HEADER knownHeader( HeaderEntry &entry )
{
    return std::atomic_ref( entry.header ).load( std::memory_order_acquire );
}

// Several threads may ask at once; the header that comes first stays.
TELSX_MESSAGE_HEADER headerAt( HeaderTable *table, HeaderEntry &entry )
{
    if ( TELSX_MESSAGE_HEADER header = knownHeader( entry ) )
        return header;
    Ref<TELSX_MESSAGE_HEADER> made = makeHeader( table, entry );
    TELSX_MESSAGE_HEADER header = nullptr;
    std::atomic_ref kept( entry.header );
    return kept.compare_exchange_strong( header, made.get(), std::memory_order_acq_rel ) ? made.take()
                                                                                         : header;
}

RT_VECTOR headersVector( HeaderTable *table )
{
    RT_VECTOR headers = rtVectorCreateWithCapacity( table->length );
    for ( HeaderEntry &entry : table->entries )
        if ( entry.name )
            rtVectorAppend( &headers, rt::asObj( headerAt( table, entry ) ) );
    return headers;
}

// A table with the headers of another, without the gaps that taking out has left.
static Ref<HeaderTable *> copyOf( HeaderTable *table )
{
    Ref<HeaderTable *> copy = createHeaderTable( table->bytes );
    copy->moreLines.append( table->moreLines );
    copy->entries.reserve( table->length + 1 );
    for ( HeaderEntry &entry : table->entries )
        if ( entry.name )
        {
            // The header alone may be put there by another thread meanwhile.
            Ref<TELSX_MESSAGE_HEADER> header = share( knownHeader( entry ) );
            HeaderEntry same = { entry.name, header.take(), entry.first, entry.last, entry.number };
            HeaderName name = { entry.name, entry.number };
            append( copy.get(), name, placeOf( copy.get(), name ), same );
        }
    return copy;
}

static void own( Ref<HeaderTable *> &table )
{
    if ( rt::shared( rt::asObj( table.get() ) ) )
        table = copyOf( table.get() );
}

void setHeader( Ref<HeaderTable *> &table, TELSX_MESSAGE_HEADER header )
{
    Ref<TELSX_MESSAGE_HEADER> given = share( header );
    own( table );
    HeaderName name = headerName( header->name.get() );
    int64_t *place = placeOf( table.get(), name );
    if ( !place || *place == -1 )
        return append( table.get(), name, place,
                       { name.name, given.take(), { -1, 0, -1 }, -1, name.number } );
    HeaderEntry *entry = &table->entries[*place];
    auto old = adopt( std::exchange( entry->header, given.take() ) );
    entry->first.begin = -1;
}

void delHeader( Ref<HeaderTable *> &table, HeaderName name )
{
    if ( !findHeader( table.get(), name ) )
        return;
    own( table );
    HeaderEntry *entry = findHeader( table.get(), name );
    *placeOf( table.get(), name ) = -1;
    --table->length;
    auto oldName = adopt( std::exchange( entry->name, nullptr ) );
    auto oldHeader = adopt( std::exchange( entry->header, nullptr ) );
    if ( table->entries.length > 2 * table->length + 8 )
        table = copyOf( table.get() );
}

} // namespace telsx
