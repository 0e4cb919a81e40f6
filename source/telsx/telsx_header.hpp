// What all typed headers share. A kind's unit writes its Encode and its decode; the rest of what
// TELSX_HEADER declares stands on these two and comes from one line. Names are constants in their canonical
// form, so that nothing is made to look one up.
#pragma once

#include "telsx/telsx_header.h"
#include "telsx/telsx_header_table.hpp"
#include "telsx/telsx_message.hpp"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_message_header.hpp"
#include "telsx/telsx_text.hpp"

namespace telsx
{

bool hasName( TELSX_MESSAGE_HEADER header, RT_STRING name );

// The lines of a header in their order, of a raw header or of a message; a message that has no such header has no
// lines either. The strings are borrowed until the next one is asked for.
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
    RT_STRING next(); // null behind the last one
    RT_STRING last(); // null if there is none
    Text lastText();  // empty if there is none; borrowed as a string is
    void restart();

    // A reference to a line that was read, the reader's own if it has one.
    Ref<RT_STRING> takeText( RT_STRING line )
    {
        return text.get() == line ? std::move( text ) : share( line );
    }

private:
    TELSX_MESSAGE_HEADER header = nullptr; // or, where nobody has asked for it yet,
    HeaderTable *table = nullptr;          // the table that it stands in,
    const HeaderEntry *entry = nullptr;    // and where there
    int64_t index = 0;                     // of the next line
    Ref<RT_STRING> text;                   // of the last line that was read in the table
    WideText wideText;                     // the same without a string
};

// The raw header with the lines of a store, a new reference, or null if a line of it is none.
TELSX_MESSAGE_HEADER tryRestoreHeader( RT_STRING name, RT_STORE store );

bool hasHeader( TELSX_MESSAGE msg, HeaderName name );
void putHeader( TELSX_MESSAGE *msg, HeaderName name, Ref<TELSX_MESSAGE_HEADER> header );
void removeHeader( TELSX_MESSAGE *msg, HeaderName name );

// The lines alone: none is an empty text, one is itself, more are as the runtime shows a vector.
RT_STRING linesToString( const Ref<TELSX_MESSAGE_HEADER> &header );

// The header with the lines that the decoder gives it; takes over the raw header's reference, which may be
// null.
template <class HANDLE>
HANDLE tryDecodeTaken( TELSX_MESSAGE_HEADER header, HANDLE ( *tryDecode )( TELSX_MESSAGE_HEADER ) )
{
    Ref<TELSX_MESSAGE_HEADER> taken = adopt( header );
    return taken ? tryDecode( header ) : nullptr;
}

} // namespace telsx

// The decoding, store, message and text functions of the kind; decode is the unit's.
#define TELSX_DEFINE_HEADER( NAME, SIP_NAME )                                                               \
    RT_STORE telsx##NAME##Store( TELSX_HANDLE( NAME ) hdr )                                                 \
    {                                                                                                       \
        TELSX_ASSERT( hdr );                                                                                \
        return telsxMessageHeaderStoreLines( telsx::adopt( telsx##NAME##Encode( hdr ) ).get() );            \
    }                                                                                                       \
    static TELSX_HANDLE( NAME ) decode( telsx::HeaderLines &lines );                                        \
    TELSX_HANDLE( NAME ) telsx##NAME##TryDecode( TELSX_MESSAGE_HEADER header )                              \
    {                                                                                                       \
        TELSX_CHECK( telsx::hasName( header, telsx::literal<SIP_NAME>() ), nullptr,                         \
                     "telsxMessageHeaderNameEqualsCstr( header, \"" SIP_NAME "\", -1 )" );                  \
        telsx::HeaderLines lines( header );                                                                 \
        return decode( lines );                                                                             \
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
        telsx::putHeader( msg, telsx::headerName<SIP_NAME>(), telsx::adopt( telsx##NAME##Encode( hdr ) ) ); \
    }                                                                                                       \
    TELSX_HANDLE( NAME ) telsx##NAME##TryDecodeFromMessage( TELSX_MESSAGE msg )                             \
    {                                                                                                       \
        TELSX_ASSERT( msg );                                                                                \
        telsx::HeaderLines lines( msg, telsx::headerName<SIP_NAME>() );                                     \
        return lines.empty() ? nullptr : decode( lines );                                                   \
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
        return telsx::linesToString( telsx::adopt( telsx##NAME##Encode( hdr ) ) );                          \
    }

// What a kind is beside its fields: TELSX_DEFINE_OBJECT with the three slots, their functions, and the line
// above. SELF is what the comparison calls its arguments.
#define TELSX_DEFINE_HEADER_OBJECT( NAME, SORT, SELF, SIP_NAME )                            \
    TELSX_DEFINE_OBJECT( NAME, SORT, telsx___##NAME##FreeFunc, telsx___##NAME##CompareFunc, \
                         telsx___##NAME##ToStringFunc )                                     \
    TELSX_DEFINE_FREE_FUNC( NAME, hdr )                                                     \
    TELSX_DEFINE_COMPARE_FUNC( NAME, SELF )                                                 \
    TELSX_DEFINE_HEADER( NAME, SIP_NAME )
