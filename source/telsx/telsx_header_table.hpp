// The headers of a fragment, in the order in which their names first appeared. A decoded header stays in the bytes of
// its lines until somebody asks for it; most are never asked for, and go out as they came in.
#pragma once

#include <atomic>
#include <bitset>

#include "rt/rt_memory.hpp"
#include "telsx/telsx_bytes.hpp"
#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_known_names.hpp"
#include "telsx/telsx_message_header.h"
#include "telsx/telsx_text.hpp"

namespace telsx
{

// A canonical name and its number among the known names, or -1. The name of a known one is a constant.
struct HeaderName
{
    RT_STRING name;
    int64_t number;
};

inline HeaderName headerName( RT_STRING canonical )
{
    Text text = textOf( canonical );
    auto size = static_cast<std::size_t>( text.length );
    int64_t number = knownNameTable[knownNameSlot( text.chs, size )].number;
    if ( knownNames[number].name != canonical )
        number = knownNameNumber( text.chs, size );
    return { number == -1 ? canonical : knownNames[number].name, number };
}

// The number of a name, which must be known.
template <rt::Ascii NAME>
consteval int64_t knownNumber()
{
    constexpr int64_t number = knownNameNumber( NAME.chs, std::size( NAME.chs ) - 1 );
    static_assert( number != -1, "the name is neither in telsx_headers.def nor in telsx_header_names.def" );
    return number;
}

template <rt::Ascii NAME>
HeaderName headerName()
{
    return { literal<NAME>(), knownNumber<NAME>() };
}

// One line of a header, in the table's bytes; next is the header's next line in moreLines, or -1.
struct HeaderLine
{
    int64_t begin, length;
    int64_t next;
};

struct HeaderEntry
{
    RT_STRING name;              // null once removed
    TELSX_MESSAGE_HEADER header; // null until somebody asks
    HeaderLine first;            // begin is -1 if the header was set instead of decoded
    int64_t last;                // the last of several lines, in moreLines, else -1
    int64_t number;              // of the name
};

struct HeaderTable
{
    RT_OBJECT object;
    int64_t size;      // of the bytes
    bool isAscii;      // all of them are
    bool holdsHeaders; // an entry may have a header object
    rt::Array<HeaderEntry> entries;
    rt::Array<HeaderLine> moreLines;
    int64_t length;                  // headers present
    std::bitset<knownCount> is;      // which known names have an entry,
    int32_t known[knownCount];       // and its index
    Ref<RT_DICT> others;             // other names; otherEntries[n] belongs to the n-th; never null
    rt::Array<int64_t> otherEntries; // -1 once removed
    HeaderEntry firstEntries[18];    // the initial storage of entries

    // The bytes that hold the lines, folds undone, and rt::scanSlack more: they follow this structure.
    char *bytes() { return reinterpret_cast<char *>( this + 1 ); }
    const char *bytes() const { return reinterpret_cast<const char *>( this + 1 ); }

    Bytes lineOf( const HeaderLine &line ) const
    {
        return { bytes() + line.begin, static_cast<std::size_t>( line.length ) };
    }
    Ref<RT_STRING> stringOf( const HeaderLine &line ) const;
};

// An empty table with a copy of the bytes, in which its lines will be.
Ref<HeaderTable *> createHeaderTable( Bytes bytes = {}, bool isAscii = true );

// Adds a line of the header, while nobody else has the table. Most lines are the first of a known name.
void addAnyLine( HeaderTable *table, HeaderName name, int64_t begin, int64_t length );
inline void addLine( HeaderTable *table, HeaderName name, int64_t begin, int64_t length )
{
    int64_t place = table->entries.length;
    if ( name.number == -1 || table->is[std::size_t( name.number )] || place == table->entries.capacity )
        [[unlikely]]
        return addAnyLine( table, name, begin, length );
    table->is[std::size_t( name.number )] = true;
    table->known[name.number] = static_cast<int32_t>( place );
    table->entries.items[place] = { name.name, nullptr, { begin, length, -1 }, -1, name.number };
    ++table->entries.length;
    ++table->length;
}

// The entry of the name, or null; its last line if it was decoded; its header, borrowed.
HeaderEntry *findOtherHeader( HeaderTable *table, RT_STRING name );
inline HeaderEntry *findHeader( HeaderTable *table, HeaderName name )
{
    if ( name.number == -1 )
        return findOtherHeader( table, name.name );
    return table->is[std::size_t( name.number )] ? &table->entries[table->known[name.number]] : nullptr;
}
Bytes lastLineOf( HeaderTable *table, const HeaderEntry &entry );
inline TELSX_MESSAGE_HEADER knownHeader( HeaderEntry &entry ) // null if nobody has asked yet
{
    return std::atomic_ref( entry.header ).load( std::memory_order_acquire );
}
TELSX_MESSAGE_HEADER headerAt( HeaderTable *table, HeaderEntry &entry );

RT_VECTOR headersVector( HeaderTable *table );

// Whether a line of a header holds a CR or LF.
bool haveLineEnds( HeaderTable *table );

// Change the table, or a private copy if somebody else has it too.
void setHeader( Ref<HeaderTable *> &table, HeaderName name, Ref<TELSX_MESSAGE_HEADER> header );
void delHeader( Ref<HeaderTable *> &table, HeaderName name );

} // namespace telsx
