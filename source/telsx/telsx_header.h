/* Typed headers: what the public headers of all kinds need. */
#ifndef TELSX_TELSX_HEADER_H
#define TELSX_TELSX_HEADER_H

#include "telsx/telsx_message.h"

/* A typed header is the structured reading of one raw header; it has no link to any message. The functions
 * that every kind has beside those of TELSX_OBJECT, where null aborts in all:
 *
 *   Encode                the raw header, a new reference
 *   TryDecode             from a raw header, which must bear the kind's name, else it aborts; a new reference, or
 *                         null for bad text. Lists and sets read all lines, all other kinds read the last one only
 *   Store, TryRestore     to and from a store of the lines, which keeps no name; null for a damaged store
 *   PresentInMessage      whether the message has a header of the name, however bad its text
 *   EncodeToMessage       puts the raw header in the place of all lines of the name
 *   TryDecodeFromMessage  a new reference, or null if there is no such header, if it has no lines, and for bad text
 *   RemoveFromMessage     takes the header out; nothing happens if there is none
 *
 * ToString gives the lines alone, without the name, with ", " between them. */
#define TELSX_HEADER( NAME, SORT )                                                    \
    TELSX_OBJECT( NAME, SORT )                                                        \
    RT_API TELSX_MESSAGE_HEADER telsx##NAME##Encode( TELSX_##SORT hdr );              \
    RT_API TELSX_##SORT telsx##NAME##TryDecode( TELSX_MESSAGE_HEADER header );        \
    RT_API RT_STORE telsx##NAME##Store( TELSX_##SORT hdr );                           \
    RT_API TELSX_##SORT telsx##NAME##TryRestore( RT_STORE store );                    \
    RT_API RT_BOOL telsx##NAME##PresentInMessage( TELSX_MESSAGE msg );                \
    RT_API void telsx##NAME##EncodeToMessage( TELSX_##SORT hdr, TELSX_MESSAGE *msg ); \
    RT_API TELSX_##SORT telsx##NAME##TryDecodeFromMessage( TELSX_MESSAGE msg );       \
    RT_API void telsx##NAME##RemoveFromMessage( TELSX_MESSAGE *msg );                 \
    TELSX_COMPARE_FUNC( NAME )                                                        \
    TELSX_TO_STRING_FUNC( NAME )

#endif
