// What all typed headers share.
#include "telsx/telsx_header.hpp"

#include "telsx/telsx_message.hpp"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_message_header.hpp"

namespace telsx
{

bool hasName( TELSX_MESSAGE_HEADER header, RT_STRING name )
{
    return header && rtStringEquals( header->name.get(), name );
}

// A line's number in the table is 0 for the first line, and otherwise its index in moreLines plus 1.
RT_STRING HeaderLines::next()
{
    if ( header )
        return index < rtVectorLength( header->lines.get() )
                   ? rtStringFrom( rt___VectorObjBorrowed( header->lines.get(), index++ ) )
                   : nullptr;
    if ( !entry || index == -1 )
        return nullptr;
    const HeaderLine &line = index == 0 ? entry->first : table->moreLines[index - 1];
    index = line.next == -1 ? -1 : line.next + 1;
    text = table->stringOf( line );
    return text.get();
}

RT_STRING HeaderLines::last()
{
    if ( header )
        index = rtIntMax( rtVectorLength( header->lines.get() ) - 1, 0 );
    else if ( entry )
        index = entry->last + 1;
    return next();
}

// Most decoders keep no part of a line, and so need no string that could be shared.
Text HeaderLines::lastText()
{
    if ( entry )
        return wideText.read( lastLineOf( table, *entry ), table->isAscii );
    RT_STRING line = last();
    return line ? textOf( line ) : Text();
}

void HeaderLines::restart() { index = 0; }

void *decodeLines( TELSX_MESSAGE_HEADER header, LinesDecoder decode )
{
    HeaderLines lines( header );
    return decode( lines );
}

void *decodeLines( TELSX_MESSAGE msg, HeaderName name, LinesDecoder decode )
{
    HeaderLines lines( msg, name );
    return lines.empty() ? nullptr : decode( lines );
}

bool hasHeader( TELSX_MESSAGE msg, HeaderName name )
{
    return findHeader( msg->fragment->headers.get(), name ) != nullptr;
}

void putHeader( TELSX_MESSAGE *msg, HeaderName name, TELSX_MESSAGE_HEADER header )
{
    setHeader( TELSX_OWN( TELSX_OWN( msg )->fragment.address() )->headers, name, adopt( header ) );
}

void removeHeader( TELSX_MESSAGE *msg, HeaderName name )
{
    delHeader( TELSX_OWN( TELSX_OWN( msg )->fragment.address() )->headers, name );
}

TELSX_MESSAGE_HEADER tryRestoreHeader( RT_STRING name, RT_STORE store )
{
    return holdsLines( store ) ? telsxMessageHeaderRestoreLines( name, store ) : nullptr;
}

RT_STRING linesToString( TELSX_MESSAGE_HEADER header )
{
    Ref<TELSX_MESSAGE_HEADER> taken = adopt( header );
    switch ( rtVectorLength( header->lines.get() ) )
    {
        case 0: return rtStringCreate();
        case 1: return telsxMessageHeaderLineAt( header, 0 );
        default: return rtVectorToString( header->lines.get() );
    }
}

RT_STORE storeLines( TELSX_MESSAGE_HEADER header )
{
    return telsxMessageHeaderStoreLines( adopt( header ).get() );
}

} // namespace telsx
