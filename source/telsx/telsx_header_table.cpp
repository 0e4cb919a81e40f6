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
    if ( table->holdsHeaders )
        for ( HeaderEntry &entry : table->entries )
            if ( entry.header )
                rt::release( rt::asObj( entry.header ) );
    table->entries.clear();
    table->moreLines.clear();
    table->otherEntries.clear();
    table->others = {};
}

static constexpr RT_SORT_ sort = { RT_STATIC_OBJECT( &rt___sort_RT_SORT ),
                                   &telsx___module,
                                   "TELSX_HEADER_TABLE",
                                   freeFunc,
                                   nullptr,
                                   nullptr,
                                   {} };

Ref<HeaderTable *> createHeaderTable( Bytes bytes, bool isAscii )
{
    int64_t size = lengthOf( bytes ), own = sizeof( HeaderTable );
    auto *table = reinterpret_cast<HeaderTable *>( rt::createObject( own + size + rt::scanSlack, &sort ) );
    rt::copyItems( table->bytes(), bytes.data(), size );
    std::memset( table->bytes() + size, 0, rt::scanSlack );
    table->size = size;
    table->isAscii = isAscii;
    table->holdsHeaders = false;
    table->entries.start( table->firstEntries, std::ssize( table->firstEntries ) );
    table->moreLines = {};
    table->length = 0;
    table->is = {};
    std::construct_at( &table->others, adopt( rtDictCreate() ) );
    table->otherEntries = {};
    return adopt( table );
}

HeaderEntry *findOtherHeader( HeaderTable *table, RT_STRING name )
{
    int64_t other = rt___DictIndex( table->others.get(), name );
    bool isThere = other != -1 && table->otherEntries[other] != -1;
    return isThere ? &table->entries[table->otherEntries[other]] : nullptr;
}

// Appends an entry for a name that has none. Known names are constants; others are held by the dictionary in which they
// are found.
static void append( HeaderTable *table, const HeaderEntry &entry )
{
    int64_t place = table->entries.length;
    table->holdsHeaders = table->holdsHeaders || entry.header;
    if ( entry.number != -1 )
    {
        table->is[std::size_t( entry.number )] = true;
        table->known[entry.number] = static_cast<int32_t>( place );
    }
    else
    {
        int64_t other = rt___DictIndex( table->others.get(), entry.name );
        rtDictSetStringKey( table->others.address(), entry.name, rt::asObj( entry.name ) );
        if ( other == -1 )
            table->otherEntries.append( place );
        else
            table->otherEntries[other] = place;
    }
    table->entries.append( entry );
    TELSX_CHECK( table->entries.capacity <= INT32_MAX, "out of memory", "capacity" );
    ++table->length;
}

void addAnyLine( HeaderTable *table, HeaderName name, int64_t begin, int64_t length )
{
    HeaderLine line = { begin, length, -1 };
    HeaderEntry *entry = findHeader( table, name );
    if ( !entry )
        return append( table, { name.name, nullptr, line, -1, name.number } );
    int64_t number = table->moreLines.length;
    table->moreLines.append( line );
    ( entry->last == -1 ? entry->first : table->moreLines[entry->last] ).next = number;
    entry->last = number;
}

Ref<RT_STRING> HeaderTable::stringOf( const HeaderLine &line ) const
{
    return adopt( isAscii ? rt___StringCreateFromAscii( bytes() + line.begin, line.length )
                          : rtStringTryCreateFromUtf8( bytes() + line.begin, line.length ) );
}

Bytes lastLineOf( HeaderTable *table, const HeaderEntry &entry )
{
    return table->lineOf( entry.last == -1 ? entry.first : table->moreLines[entry.last] );
}

static Ref<TELSX_MESSAGE_HEADER> makeHeader( HeaderTable *table, const HeaderEntry &entry )
{
    Ref<RT_STRING> first = table->stringOf( entry.first );
    auto header = adopt( createHeader( entry.name, std::move( first ) ) );
    for ( int64_t next = entry.first.next; next != -1; next = table->moreLines[next].next )
    {
        Ref<RT_STRING> line = table->stringOf( table->moreLines[next] );
        rtVectorAppendString( header->lines.address(), line.get() );
    }
    return header;
}

// Several threads may ask at once; the first header to be stored stays.
TELSX_MESSAGE_HEADER headerAt( HeaderTable *table, HeaderEntry &entry )
{
    if ( TELSX_MESSAGE_HEADER header = knownHeader( entry ) )
        return header;
    Ref<TELSX_MESSAGE_HEADER> made = makeHeader( table, entry );
    TELSX_MESSAGE_HEADER header = nullptr;
    std::atomic_ref( table->holdsHeaders ).store( true, std::memory_order_relaxed );
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

static bool hasLineEnd( Bytes line )
{
    return line.find( '\r' ) != line.npos || line.find( '\n' ) != line.npos;
}

static bool hasLineEnd( RT_VECTOR lines )
{
    auto isLineEnd = []( RT_CHAR ch ) { return ch == RT_CHAR_CARRIAGE_RETURN || ch == RT_CHAR_LINE_FEED; };
    for ( int64_t i = 0; i < rtVectorLength( lines ); ++i )
    {
        Text line = textOf( rtStringFrom( rt___VectorObjBorrowed( lines, i ) ) );
        if ( std::any_of( line.chs, line.chs + line.length, isLineEnd ) )
            return true;
    }
    return false;
}

static bool hasLineEnd( HeaderTable *table, const HeaderEntry &entry )
{
    if ( entry.first.begin == -1 )
        return hasLineEnd( entry.header->lines.get() );
    bool found = hasLineEnd( table->lineOf( entry.first ) );
    for ( int64_t next = entry.first.next; next != -1 && !found; next = table->moreLines[next].next )
        found = hasLineEnd( table->lineOf( table->moreLines[next] ) );
    return found;
}

bool haveLineEnds( HeaderTable *table )
{
    return std::any_of( table->entries.begin(), table->entries.end(),
                        [table]( const HeaderEntry &entry )
                        { return entry.name && hasLineEnd( table, entry ); } );
}

// A table with the headers of another, without the gaps left by removed ones.
static Ref<HeaderTable *> copyOf( HeaderTable *table )
{
    Ref<HeaderTable *> copy =
        createHeaderTable( { table->bytes(), static_cast<std::size_t>( table->size ) }, table->isAscii );
    copy->moreLines.append( table->moreLines );
    copy->entries.reserve( table->length + 1 );
    for ( HeaderEntry &entry : table->entries )
        if ( entry.name )
        {
            // Only the header may be set by another thread meanwhile.
            Ref<TELSX_MESSAGE_HEADER> header = share( knownHeader( entry ) );
            append( copy.get(), { entry.name, header.take(), entry.first, entry.last, entry.number } );
        }
    return copy;
}

static void own( Ref<HeaderTable *> &table )
{
    if ( rt::shared( rt::asObj( table.get() ) ) )
        table = copyOf( table.get() );
}

void setHeader( Ref<HeaderTable *> &table, HeaderName name, Ref<TELSX_MESSAGE_HEADER> header )
{
    own( table );
    HeaderEntry *entry = findHeader( table.get(), name );
    if ( !entry )
        return append( table.get(), { name.name, header.take(), { -1, 0, -1 }, -1, name.number } );
    auto old = adopt( std::exchange( entry->header, header.take() ) );
    entry->first.begin = -1;
    table->holdsHeaders = true;
}

void delHeader( Ref<HeaderTable *> &table, HeaderName name )
{
    if ( !findHeader( table.get(), name ) )
        return;
    own( table );
    HeaderEntry *entry = findHeader( table.get(), name );
    if ( name.number != -1 )
        table->is[std::size_t( name.number )] = false;
    else
        table->otherEntries[rt___DictIndex( table->others.get(), name.name )] = -1;
    entry->name = nullptr;
    --table->length;
    auto oldHeader = adopt( std::exchange( entry->header, nullptr ) );
    // Enough gaps to pay for the copy, including its bytes.
    if ( table->entries.length > 2 * table->length + 8 + table->size / 64 )
        table = copyOf( table.get() );
}

} // namespace telsx
