// What all typed headers share. The unit of a kind writes its Encode and its decode; the rest of what TELSX_HEADER
// declares builds on these two and comes from one line. Names are constants in canonical form, so no string is made to
// look one up.
#pragma once

#include "telsx/telsx_bytes.hpp"
#include "telsx/telsx_header.h"
#include "telsx/telsx_header_table.hpp"
#include "telsx/telsx_message.hpp"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_message_header.hpp"
#include "telsx/telsx_text.hpp"

namespace telsx
{

bool hasName( TELSX_MESSAGE_HEADER header, RT_STRING name );

// The lines of a header in order, from a raw header or a message; a message without such a header has no lines. A
// string is borrowed until the next one is read.
class HeaderLines
{
public:
    explicit HeaderLines( TELSX_MESSAGE_HEADER rawHeader ) : header( rawHeader ) {}
    HeaderLines( TELSX_MESSAGE msg, HeaderName name ) : table( msg->fragment->headers.get() )
    {
        if ( HeaderEntry *found = findHeader( table, name ) )
        {
            header = knownHeader( *found );
            entry = header ? nullptr : found;
        }
    }

    bool empty() const { return !entry && ( !header || rtVectorLength( header->lines.get() ) == 0 ); }
    RT_STRING next(); // null after the last one
    RT_STRING last(); // null if there is none
    Text lastText();  // empty if there is none; borrowed like a string
    void restart();

    // A reference to a line that was read; the reader's own if it has one.
    Ref<RT_STRING> takeText( RT_STRING line )
    {
        return text.get() == line ? std::move( text ) : share( line );
    }

private:
    TELSX_MESSAGE_HEADER header = nullptr; // or, if nobody has asked for it yet,
    HeaderTable *table = nullptr;          // the table that it is in,
    const HeaderEntry *entry = nullptr;    // and its entry there
    int64_t index = 0;                     // of the next line
    Ref<RT_STRING> text;                   // of the last line that was read from the table
    WideText wideText;                     // the same without a string
};

// The raw header with the lines of a store, a new reference, or null if one of them is not a line.
TELSX_MESSAGE_HEADER tryRestoreHeader( RT_STRING name, RT_STORE store );

bool hasHeader( TELSX_MESSAGE msg, HeaderName name );
void putHeader( TELSX_MESSAGE *msg, HeaderName name, TELSX_MESSAGE_HEADER header ); // takes over the header
void removeHeader( TELSX_MESSAGE *msg, HeaderName name );

// The lines alone: an empty text for none, the line itself for one, and for more what the runtime shows for a vector.
// Takes over the header.
RT_STRING linesToString( TELSX_MESSAGE_HEADER header );

// The store of the lines; takes over the header.
RT_STORE storeLines( TELSX_MESSAGE_HEADER header );

// The header that the decoder makes of the lines; takes over the raw header's reference, which may be null.
template <class HANDLE>
HANDLE tryDecodeTaken( TELSX_MESSAGE_HEADER header, HANDLE ( *tryDecode )( TELSX_MESSAGE_HEADER ) )
{
    Ref<TELSX_MESSAGE_HEADER> taken = adopt( header );
    return taken ? tryDecode( header ) : nullptr;
}

// What the decoder of a kind makes of the lines of a header or a message; null if a message has no such header. Each kind
// has one decoder behind a pointer, so that what is around it is code of one function for all kinds.
using LinesDecoder = void *(*)( HeaderLines &lines );

void *decodeLines( TELSX_MESSAGE_HEADER header, LinesDecoder decode );
void *decodeLines( TELSX_MESSAGE msg, HeaderName name, LinesDecoder decode );

template <auto DECODE>
void *decoderOf( HeaderLines &lines )
{
    return DECODE( lines );
}

} // namespace telsx

// The decoding, store, message and text functions of the kind; its unit defines decode.
#define TELSX_DEFINE_HEADER( NAME, SIP_NAME )                                                               \
    RT_STORE telsx##NAME##Store( TELSX_HANDLE( NAME ) hdr )                                                 \
    {                                                                                                       \
        TELSX_ASSERT( hdr );                                                                                \
        return telsx::storeLines( telsx##NAME##Encode( hdr ) );                                             \
    }                                                                                                       \
    static TELSX_HANDLE( NAME ) decode( telsx::HeaderLines &lines );                                        \
    TELSX_HANDLE( NAME ) telsx##NAME##TryDecode( TELSX_MESSAGE_HEADER header )                              \
    {                                                                                                       \
        TELSX_CHECK( telsx::hasName( header, telsx::literal<SIP_NAME>() ), nullptr,                         \
                     "telsxMessageHeaderNameEqualsCstr( header, \"" SIP_NAME "\", -1 )" );                  \
        return static_cast<TELSX_HANDLE( NAME )>( telsx::decodeLines( header, telsx::decoderOf<decode> ) ); \
    }                                                                                                       \
    TELSX_HANDLE( NAME ) telsx##NAME##TryRestore( RT_STORE store )                                          \
    {                                                                                                       \
        TELSX_ASSERT( store );                                                                              \
        return telsx::tryDecodeTaken( telsx::tryRestoreHeader( telsx::literal<SIP_NAME>(), store ),         \
                                      telsx##NAME##TryDecode );                                             \
    }                                                                                                       \
    RT_BOOL telsx##NAME##PresentInMessage( TELSX_MESSAGE msg )                                              \
    {                                                                                                       \
        TELSX_ASSERT( msg );                                                                                \
        return telsx::hasHeader( msg, telsx::headerName<SIP_NAME>() );                                      \
    }                                                                                                       \
    void telsx##NAME##EncodeToMessage( TELSX_HANDLE( NAME ) hdr, TELSX_MESSAGE *msg )                       \
    {                                                                                                       \
        TELSX_ASSERT( hdr );                                                                                \
        TELSX_ASSERT_HANDLE( msg );                                                                         \
        telsx::putHeader( msg, telsx::headerName<SIP_NAME>(), telsx##NAME##Encode( hdr ) );                 \
    }                                                                                                       \
    TELSX_HANDLE( NAME ) telsx##NAME##TryDecodeFromMessage( TELSX_MESSAGE msg )                             \
    {                                                                                                       \
        TELSX_ASSERT( msg );                                                                                \
        return static_cast<TELSX_HANDLE( NAME )>(                                                           \
            telsx::decodeLines( msg, telsx::headerName<SIP_NAME>(), telsx::decoderOf<decode> ) );           \
    }                                                                                                       \
    void telsx##NAME##RemoveFromMessage( TELSX_MESSAGE *msg )                                               \
    {                                                                                                       \
        TELSX_ASSERT_HANDLE( msg );                                                                         \
        telsx::removeHeader( msg, telsx::headerName<SIP_NAME>() );                                          \
    }                                                                                                       \
    RT_STRING telsx___##NAME##ToStringFunc( RT_OBJ obj )                                                    \
    {                                                                                                       \
        auto hdr = telsx##NAME##From( obj );                                                                \
        TELSX_ASSERT( hdr );                                                                                \
        return telsx::linesToString( telsx##NAME##Encode( hdr ) );                                          \
    }

// Everything of a kind except its fields: TELSX_DEFINE_OBJECT with the three slots, their functions, and the functions
// above. SELF is the name that the comparison gives its arguments.
#define TELSX_DEFINE_HEADER_OBJECT( NAME, SORT, SELF, SIP_NAME )                            \
    TELSX_DEFINE_OBJECT( NAME, SORT, telsx___##NAME##FreeFunc, telsx___##NAME##CompareFunc, \
                         telsx___##NAME##ToStringFunc )                                     \
    TELSX_DEFINE_FREE_FUNC( NAME, hdr )                                                     \
    TELSX_DEFINE_COMPARE_FUNC( NAME, SELF )                                                 \
    TELSX_DEFINE_HEADER( NAME, SIP_NAME )
