// The headers of a fragment, in the order in which their names came. A header that was decoded stays in the bytes
// of its lines until somebody asks for it: most never are, and go out as they came in.
#pragma once

#include <string_view>

#include "rt/rt_memory.hpp"
#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_known_names.hpp"
#include "telsx/telsx_message_header.h"
#include "telsx/telsx_text.hpp"

namespace telsx
{

// A span of bytes on their way in.
using Bytes = std::string_view;

inline Bytes bytesOf( RT_BUFFER buffer )
{
    return { static_cast<const char *>( rtBufferBacking( buffer ) ),
             static_cast<std::size_t>( rtBufferLength( buffer ) ) };
}

inline int64_t lengthOf( Bytes bytes ) { return static_cast<int64_t>( bytes.size() ); }

inline Ref<RT_BUFFER> bufferOf( Bytes bytes )
{
    return adopt( rtBufferCreateFromBytesCopy( bytes.data(), lengthOf( bytes ) ) );
}

// The string of bytes that are known to be UTF-8.
inline Ref<RT_STRING> stringOf( Bytes bytes )
{
    return adopt( rtStringTryCreateFromUtf8( bytes.data(), lengthOf( bytes ) ) );
}

constexpr Bytes lineEnd = "\r\n", headEnd = "\r\n\r\n";

// A canonical name, and its number among the known names, or -1.
struct HeaderName
{
    RT_STRING name;
    int64_t number;
};

inline HeaderName headerName( RT_STRING canonical )
{
    Text text = textOf( canonical );
    return { canonical, knownNameNumber( text.chs, static_cast<std::size_t>( text.length ) ) };
}

// The number of a name that must be known.
template <rt::Ascii NAME>
consteval int64_t knownNumber()
{
    constexpr int64_t number = knownNameNumber( NAME.chs, std::size( NAME.chs ) - 1 );
    static_assert( number != -1, "names of typed headers belong into knownNames" );
    return number;
}

template <rt::Ascii NAME>
HeaderName headerName()
{
    return { literal<NAME>(), knownNumber<NAME>() };
}

// One line of a header, in the table's bytes; next is the header's following one in moreLines, or -1.
struct HeaderLine
{
    int64_t begin, length;
    int64_t next;
};

struct HeaderEntry
{
    RT_STRING name;              // null once it was taken out
    TELSX_MESSAGE_HEADER header; // null until somebody asks
    HeaderLine first;            // begin is -1 if the header was put in, and not decoded
    int64_t last;                // the last of more than one line in moreLines, else -1
    int64_t number;              // of the name
};

struct HeaderTable
{
    RT_OBJECT object;
    Ref<RT_BUFFER> bytes; // where the lines stand, folds undone, never null
    rt::Array<HeaderEntry> entries;
    rt::Array<HeaderLine> moreLines;
    int64_t length;                         // headers that are there
    int64_t known[std::size( knownNames )]; // the entry of each known name, or -1
    Ref<RT_DICT> others;             // of other names the n-th has its entry in otherEntries; never null
    rt::Array<int64_t> otherEntries; // -1 once it was taken out

    Bytes lineOf( const HeaderLine &line ) const
    {
        return bytesOf( bytes.get() )
            .substr( static_cast<std::size_t>( line.begin ), static_cast<std::size_t>( line.length ) );
    }
};

// An empty table whose lines will stand in the bytes.
Ref<HeaderTable *> createHeaderTable( const Ref<RT_BUFFER> &bytes );

// A line more of the header, while nobody else has the table.
void addLine( HeaderTable *table, HeaderName name, int64_t begin, int64_t length );

// The entry of the name, or null; its last line if it was decoded; its header, borrowed.
HeaderEntry *findHeader( HeaderTable *table, HeaderName name );
Bytes lastLineOf( HeaderTable *table, const HeaderEntry &entry );
TELSX_MESSAGE_HEADER knownHeader( HeaderEntry &entry ); // null if nobody has asked yet
TELSX_MESSAGE_HEADER headerAt( HeaderTable *table, HeaderEntry &entry );

RT_VECTOR headersVector( HeaderTable *table );

// Change the table, a private copy of it if somebody else has it too.
void setHeader( Ref<HeaderTable *> &table, TELSX_MESSAGE_HEADER header );
void delHeader( Ref<HeaderTable *> &table, HeaderName name );

} // namespace telsx
