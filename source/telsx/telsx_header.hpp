// What all typed headers share. A kind's unit writes its Encode and its TryDecode; the rest of what
// TELSX_HEADER declares stands on these two and comes from one line. Names are constants in their canonical
// form, so that nothing is made to look one up.
#pragma once

#include "telsx/telsx_header.h"
#include "telsx/telsx_message_header.hpp"
#include "telsx/telsx_text.hpp"

namespace telsx
{

bool hasName( TELSX_MESSAGE_HEADER header, RT_STRING name );

// The raw header of the canonical name in the message, borrowed, or null.
TELSX_MESSAGE_HEADER headerOf( TELSX_MESSAGE msg, RT_STRING name );

// The number of lines, and one of them, borrowed; the last one, or null if there is none.
int64_t linesOf( TELSX_MESSAGE_HEADER header );
RT_STRING lineOf( TELSX_MESSAGE_HEADER header, int64_t index );
RT_STRING lastLineOf( TELSX_MESSAGE_HEADER header );

// The raw header with the lines of a store, a new reference, or null if a line of it is none.
TELSX_MESSAGE_HEADER tryRestoreHeader( RT_STRING name, RT_STORE store );

// Removes the header of a canonical name.
void removeHeader( TELSX_MESSAGE *msg, RT_STRING name );

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

// The start of every TryDecode: the raw header must bear the kind's name.
#define TELSX_ASSERT_NAME( SIP_NAME )                                           \
    TELSX_CHECK( telsx::hasName( header, telsx::literal<SIP_NAME>() ), nullptr, \
                 "telsxMessageHeaderNameEqualsCstr( header, \"" SIP_NAME "\", -1 )" )

// The store, message and text functions of the kind.
#define TELSX_DEFINE_HEADER( NAME, SIP_NAME )                                                       \
    RT_STORE telsx##NAME##Store( TELSX_HANDLE( NAME ) hdr )                                         \
    {                                                                                               \
        TELSX_ASSERT( hdr );                                                                        \
        return telsxMessageHeaderStoreLines( telsx::adopt( telsx##NAME##Encode( hdr ) ).get() );    \
    }                                                                                               \
    TELSX_HANDLE( NAME ) telsx##NAME##TryRestore( RT_STORE store )                                  \
    {                                                                                               \
        TELSX_ASSERT( store );                                                                      \
        return telsx::tryDecodeTaken( telsx::tryRestoreHeader( telsx::literal<SIP_NAME>(), store ), \
                                      telsx##NAME##TryDecode );                                     \
    }                                                                                               \
    RT_BOOL telsx##NAME##PresentInMessage( TELSX_MESSAGE msg )                                      \
    {                                                                                               \
        TELSX_ASSERT( msg );                                                                        \
        return telsx::headerOf( msg, telsx::literal<SIP_NAME>() ) != nullptr;                       \
    }                                                                                               \
    void telsx##NAME##EncodeToMessage( TELSX_HANDLE( NAME ) hdr, TELSX_MESSAGE *msg )               \
    {                                                                                               \
        TELSX_ASSERT( hdr );                                                                        \
        TELSX_ASSERT_HANDLE( msg );                                                                 \
        telsxMessageSetHeader( msg, telsx::adopt( telsx##NAME##Encode( hdr ) ).get() );             \
    }                                                                                               \
    TELSX_HANDLE( NAME ) telsx##NAME##TryDecodeFromMessage( TELSX_MESSAGE msg )                     \
    {                                                                                               \
        TELSX_ASSERT( msg );                                                                        \
        TELSX_MESSAGE_HEADER header = telsx::headerOf( msg, telsx::literal<SIP_NAME>() );           \
        return header && telsx::linesOf( header ) ? telsx##NAME##TryDecode( header ) : nullptr;     \
    }                                                                                               \
    void telsx##NAME##RemoveFromMessage( TELSX_MESSAGE *msg )                                       \
    {                                                                                               \
        TELSX_ASSERT_HANDLE( msg );                                                                 \
        telsx::removeHeader( msg, telsx::literal<SIP_NAME>() );                                     \
    }                                                                                               \
    RT_STRING telsx___##NAME##ToStringFunc( RT_OBJ obj )                                            \
    {                                                                                               \
        auto hdr = telsx##NAME##From( obj );                                                        \
        TELSX_ASSERT( hdr );                                                                        \
        return telsx::linesToString( telsx::adopt( telsx##NAME##Encode( hdr ) ) );                  \
    }

// What a kind is beside its fields: TELSX_DEFINE_OBJECT with the three slots, their functions, and the line
// above. SELF is what the comparison calls its arguments.
#define TELSX_DEFINE_HEADER_OBJECT( NAME, SORT, SELF, SIP_NAME )                            \
    TELSX_DEFINE_OBJECT( NAME, SORT, telsx___##NAME##FreeFunc, telsx___##NAME##CompareFunc, \
                         telsx___##NAME##ToStringFunc )                                     \
    TELSX_DEFINE_FREE_FUNC( NAME, hdr )                                                     \
    TELSX_DEFINE_COMPARE_FUNC( NAME, SELF )                                                 \
    TELSX_DEFINE_HEADER( NAME, SIP_NAME )
