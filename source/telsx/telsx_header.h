/* Typed headers: what all kinds have, and what the kinds of each shape have. */
#ifndef TELSX_TELSX_HEADER_H
#define TELSX_TELSX_HEADER_H

#include "telsx/telsx_message.h"

/* A typed header is the structured reading of one raw header; it has no link to any message. Every kind has these
 * functions besides those of TELSX_OBJECT; all of them abort for null:
 *
 *   Encode                the raw header, a new reference
 *   TryDecode             from a raw header: a new reference, or null for bad text. Aborts unless the raw header has the
 *                         kind's name. Lists and sets read all lines, all other kinds only the last one
 *   Store                 a new store of the lines, which keeps no name
 *   TryRestore            from such a store; a new reference, or null for a damaged store and for bad text
 *   PresentInMessage      whether the message has a header of that name, even one that does not decode
 *   EncodeToMessage       puts the raw header in the place of all lines of its name
 *   TryDecodeFromMessage  from the message's header of that name: a new reference, or null if there is none, if it has no
 *                         lines, and for bad text
 *   RemoveFromMessage     takes the header out; does nothing if there is none
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

/* A typed header that is a set of texts, in the order in which they came: a text that is set again stays where it is.
 * All of them stand on one line when the header is written; an empty set is written without a line, and an empty line is
 * read as an empty set. The functions besides those of TELSX_HEADER:
 *
 *   Create               a new header with an empty set
 *   <WORD>sLength        how many texts (<words>) are in the set
 *   <WORD>At             the <word> at the index, a new reference; aborts unless the index is valid
 *   <WORD>sVector        a new vector of all texts (<words>)
 *   Has<WORD>            whether the <word> is in the set; aborts unless telsx<WORD>Ok
 *   Set<WORD>            adds the <word>; aborts unless telsx<WORD>Ok
 *   Del<WORD>            takes the <word> out if it is there; aborts unless telsx<WORD>Ok
 *   Clear<WORD>s         empties the set
 *   Set<WORD>sVector     fills the emptied set with the texts of the vector's elements; aborts for null, and for a text
 *                        that is not telsx<WORD>Ok */
#define TELSX_HEADER_OF_SET( NAME, SORT, WORD )                                   \
    TELSX_HEADER( NAME, SORT )                                                    \
    TELSX_FREE_FUNC( NAME )                                                       \
    RT_API TELSX_##SORT telsx##NAME##Create( void );                              \
    RT_API int64_t telsx##NAME##WORD##sLength( TELSX_##SORT hdr );                \
    RT_API RT_STRING telsx##NAME##WORD##At( TELSX_##SORT hdr, int64_t index );    \
    RT_API RT_VECTOR telsx##NAME##WORD##sVector( TELSX_##SORT hdr );              \
    RT_API RT_BOOL telsx##NAME##Has##WORD( TELSX_##SORT hdr, RT_STRING element ); \
    RT_API void telsx##NAME##Set##WORD( TELSX_##SORT *hdr, RT_STRING element );   \
    RT_API void telsx##NAME##Del##WORD( TELSX_##SORT *hdr, RT_STRING element );   \
    RT_API void telsx##NAME##Clear##WORD##s( TELSX_##SORT *hdr );                 \
    RT_API void telsx##NAME##Set##WORD##sVector( TELSX_##SORT *hdr, RT_VECTOR vec );

/* The functions of such a header that take one text, for 8-bit characters (Cstr) or wide ones (Wcstr):
 *
 *   Has<WORD><SUFFIX>    whether the <word> is in the set; aborts unless telsx<WORD>Ok
 *   Set<WORD><SUFFIX>    adds the <word>; aborts unless telsx<WORD>Ok
 *   Del<WORD><SUFFIX>    takes the <word> out if it is there; aborts unless telsx<WORD>Ok */
#define TELSX_CHARS_OF_SET( NAME, SORT, WORD, SUFFIX, CHAR )                                              \
    RT_API RT_BOOL telsx##NAME##Has##WORD##SUFFIX( TELSX_##SORT hdr, const CHAR *chars, int64_t length ); \
    RT_API void telsx##NAME##Set##WORD##SUFFIX( TELSX_##SORT *hdr, const CHAR *chars, int64_t length );   \
    RT_API void telsx##NAME##Del##WORD##SUFFIX( TELSX_##SORT *hdr, const CHAR *chars, int64_t length );

/* The list of a typed header that holds values. The header keeps the text of each value, in order, and reads a value when
 * it is asked for it; each is written on a line of its own. Two such headers compare by these texts. A raw header with an
 * empty line is an empty list, and one without lines is bad text where the kind says nothing else. An index that is out
 * of range aborts.
 *
 *   <WORD>sLength        how many values the list has
 *   TryDecode<WORD>At    the <word> at the index, a new reference, or null for bad text: the list itself has looked only
 *                        for the end of each value
 *   Set<WORD>At          puts the <word> in the place of the value at the index
 *   Del<WORD>At          takes out the value at the index
 *   Prepend<WORD>        puts the <word> before all other values
 *   Append<WORD>         puts the <word> after all other values
 *   Insert<WORD>         puts the <word> before the value at the index, or after all values if the index is their number */
#define TELSX_LIST_OF_VALUES( NAME, SORT, WORD, VALUE_SORT )                                              \
    RT_API int64_t telsx##NAME##WORD##sLength( TELSX_##SORT hdr );                                        \
    RT_API TELSX_##VALUE_SORT telsx##NAME##TryDecode##WORD##At( TELSX_##SORT hdr, int64_t index );        \
    RT_API void telsx##NAME##Set##WORD##At( TELSX_##SORT *hdr, int64_t index, TELSX_##VALUE_SORT value ); \
    RT_API void telsx##NAME##Del##WORD##At( TELSX_##SORT *hdr, int64_t index );                           \
    RT_API void telsx##NAME##Prepend##WORD( TELSX_##SORT *hdr, TELSX_##VALUE_SORT value );                \
    RT_API void telsx##NAME##Append##WORD( TELSX_##SORT *hdr, TELSX_##VALUE_SORT value );                 \
    RT_API void telsx##NAME##Insert##WORD( TELSX_##SORT *hdr, int64_t index, TELSX_##VALUE_SORT value );

/* A typed header that is a list of values: TELSX_LIST_OF_VALUES and
 *
 *   Create               a new header without values
 *   Clear<WORD>s         empties the list */
#define TELSX_HEADER_OF_VALUES( NAME, SORT, WORD, VALUE_SORT ) \
    TELSX_HEADER( NAME, SORT )                                 \
    TELSX_FREE_FUNC( NAME )                                    \
    RT_API TELSX_##SORT telsx##NAME##Create( void );           \
    TELSX_LIST_OF_VALUES( NAME, SORT, WORD, VALUE_SORT )       \
    RT_API void telsx##NAME##Clear##WORD##s( TELSX_##SORT *hdr );

/* A typed header that is a list of texts, in which a text may stand more than once. All of them stand on one line when the
 * header is written; an empty list is written without a line, and an empty line is read as an empty list. A text that is
 * set aborts unless telsx<WORD>Ok, and an index aborts if it is out of range. The functions besides those of TELSX_HEADER:
 *
 *   Create               a new header with an empty list
 *   <WORD>sVector        the vector of all texts (<words>), a new reference
 *   <WORD>sLength        how many texts (<words>) the list has
 *   <WORD>At             the <word> at the index, a new reference
 *   Set<WORD>At          puts the <word> in the place of the text at the index
 *   Del<WORD>At          takes out the text at the index
 *   Prepend<WORD>        puts the <word> before all others
 *   Append<WORD>         puts the <word> after all others
 *   Insert<WORD>         puts the <word> before the text at the index, or after all if the index is their number
 *   Clear<WORD>s         empties the list
 *   Set<WORD>sVector     fills the emptied list with the vector's elements; aborts for null, for an element that is not
 *                        a string, and for one that is not telsx<WORD>Ok */
#define TELSX_HEADER_OF_LIST( NAME, SORT, WORD )                                                   \
    TELSX_HEADER( NAME, SORT )                                                                     \
    TELSX_FREE_FUNC( NAME )                                                                        \
    RT_API TELSX_##SORT telsx##NAME##Create( void );                                               \
    RT_API RT_VECTOR telsx##NAME##WORD##sVector( TELSX_##SORT hdr );                               \
    RT_API int64_t telsx##NAME##WORD##sLength( TELSX_##SORT hdr );                                 \
    RT_API RT_STRING telsx##NAME##WORD##At( TELSX_##SORT hdr, int64_t index );                     \
    RT_API void telsx##NAME##Set##WORD##At( TELSX_##SORT *hdr, int64_t index, RT_STRING element ); \
    RT_API void telsx##NAME##Del##WORD##At( TELSX_##SORT *hdr, int64_t index );                    \
    RT_API void telsx##NAME##Prepend##WORD( TELSX_##SORT *hdr, RT_STRING element );                \
    RT_API void telsx##NAME##Append##WORD( TELSX_##SORT *hdr, RT_STRING element );                 \
    RT_API void telsx##NAME##Insert##WORD( TELSX_##SORT *hdr, int64_t index, RT_STRING element );  \
    RT_API void telsx##NAME##Clear##WORD##s( TELSX_##SORT *hdr );                                  \
    RT_API void telsx##NAME##Set##WORD##sVector( TELSX_##SORT *hdr, RT_VECTOR vec );

#endif
