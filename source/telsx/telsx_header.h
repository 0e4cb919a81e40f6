/* Typed headers: what all kinds have, and what the kinds of each shape have. */
#ifndef TELSX_TELSX_HEADER_H
#define TELSX_TELSX_HEADER_H

#include "telsx/telsx_message.h"

/* A typed header is the structured form of one raw header and has no link to any message. Every kind has these
 * functions besides those of TELSX_OBJECT; all of them abort for null:
 *
 *   Encode                the raw header, a new reference
 *   TryDecode             decodes a raw header: a new reference, or null for bad text. Aborts unless the raw header has
 *                         the kind's name. Lists and sets read all lines, all other kinds only the last one
 *   Store                 a new store of the lines, without the name
 *   TryRestore            decodes such a store: a new reference, or null for a damaged store and for bad text
 *   PresentInMessage      whether the message has a header of that name, even one that does not decode
 *   EncodeToMessage       puts the raw header into the message, in place of all lines of its name
 *   TryDecodeFromMessage  decodes the message's header of that name: a new reference, or null if there is none, if it
 *                         has no lines, and for bad text
 *   RemoveFromMessage     removes the header; does nothing if there is none
 *
 * ToString returns the lines alone, without the name, separated by ", ". */
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

/* A typed header that is a set of texts, in the order in which they were added: a text that is set again keeps its
 * place. The header is written on one line; an empty set is written without a line, and an empty line is read as an
 * empty set. The functions besides those of TELSX_HEADER:
 *
 *   Create               a new header with an empty set
 *   <WORD>sLength        the number of texts (<words>) in the set
 *   <WORD>At             the <word> at the index, a new reference; aborts unless the index is valid
 *   <WORD>sVector        a new vector of all texts (<words>)
 *   Has<WORD>            whether the <word> is in the set; aborts unless telsx<WORD>Ok
 *   Set<WORD>            adds the <word>; aborts unless telsx<WORD>Ok
 *   Del<WORD>            removes the <word> if it is there; aborts unless telsx<WORD>Ok
 *   Clear<WORD>s         empties the set
 *   Set<WORD>sVector     replaces the set with the texts of the vector's elements; aborts for null, and unless each
 *                        text is telsx<WORD>Ok */
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
 *   Del<WORD><SUFFIX>    removes the <word> if it is there; aborts unless telsx<WORD>Ok */
#define TELSX_CHARS_OF_SET( NAME, SORT, WORD, SUFFIX, CHAR )                                              \
    RT_API RT_BOOL telsx##NAME##Has##WORD##SUFFIX( TELSX_##SORT hdr, const CHAR *chars, int64_t length ); \
    RT_API void telsx##NAME##Set##WORD##SUFFIX( TELSX_##SORT *hdr, const CHAR *chars, int64_t length );   \
    RT_API void telsx##NAME##Del##WORD##SUFFIX( TELSX_##SORT *hdr, const CHAR *chars, int64_t length );

/* The list of a typed header that holds values. The header keeps the text of each value, in order, and decodes a value
 * only when asked for it. Each value is written on a line of its own. Two such headers compare by these texts. A raw
 * header with an empty line is an empty list; a raw header without lines is bad text unless the kind says otherwise.
 * Functions that take an index abort unless it is valid.
 *
 *   <WORD>sLength        the number of values in the list
 *   TryDecode<WORD>At    the <word> at the index, a new reference, or null for bad text: decoding the list has only
 *                        looked for the end of each value
 *   Set<WORD>At          replaces the value at the index with the <word>
 *   Del<WORD>At          removes the value at the index
 *   Prepend<WORD>        puts the <word> before all other values
 *   Append<WORD>         puts the <word> after all other values
 *   Insert<WORD>         puts the <word> before the value at the index, or after all others if the index is the
 *                        length */
#define TELSX_LIST_OF_VALUES( NAME, SORT, WORD, VALUE )                                      \
    RT_API int64_t telsx##NAME##WORD##sLength( TELSX_##SORT hdr );                           \
    RT_API VALUE telsx##NAME##TryDecode##WORD##At( TELSX_##SORT hdr, int64_t index );        \
    RT_API void telsx##NAME##Set##WORD##At( TELSX_##SORT *hdr, int64_t index, VALUE value ); \
    RT_API void telsx##NAME##Del##WORD##At( TELSX_##SORT *hdr, int64_t index );              \
    RT_API void telsx##NAME##Prepend##WORD( TELSX_##SORT *hdr, VALUE value );                \
    RT_API void telsx##NAME##Append##WORD( TELSX_##SORT *hdr, VALUE value );                 \
    RT_API void telsx##NAME##Insert##WORD( TELSX_##SORT *hdr, int64_t index, VALUE value );

/* A typed header that is a list of values: the functions of TELSX_LIST_OF_VALUES and
 *
 *   Create               a new header with an empty list
 *   Clear<WORD>s         empties the list */
#define TELSX_HEADER_OF_VALUES( NAME, SORT, WORD, VALUE_SORT )   \
    TELSX_HEADER( NAME, SORT )                                   \
    TELSX_FREE_FUNC( NAME )                                      \
    RT_API TELSX_##SORT telsx##NAME##Create( void );             \
    TELSX_LIST_OF_VALUES( NAME, SORT, WORD, TELSX_##VALUE_SORT ) \
    RT_API void telsx##NAME##Clear##WORD##s( TELSX_##SORT *hdr );

/* A typed header that is a list of texts, which may hold a text more than once. The header is written on one line; an
 * empty list is written without a line, and an empty line is read as an empty list. Functions that take a text abort
 * unless telsx<WORD>Ok, and functions that take an index abort unless it is valid. The functions besides those of
 * TELSX_HEADER:
 *
 *   Create               a new header with an empty list
 *   <WORD>sVector        the vector of all texts (<words>), a new reference
 *   <WORD>sLength        the number of texts (<words>) in the list
 *   <WORD>At             the <word> at the index, a new reference
 *   Set<WORD>At          replaces the text at the index with the <word>
 *   Del<WORD>At          removes the text at the index
 *   Prepend<WORD>        puts the <word> before all others
 *   Append<WORD>         puts the <word> after all others
 *   Insert<WORD>         puts the <word> before the text at the index, or after all others if the index is the length
 *   Clear<WORD>s         empties the list
 *   Set<WORD>sVector     replaces the list with the vector's elements; aborts for null, and unless each element is a
 *                        string that is telsx<WORD>Ok */
#define TELSX_HEADER_OF_LIST( NAME, SORT, WORD, ELEMENT )                                          \
    TELSX_HEADER( NAME, SORT )                                                                     \
    TELSX_FREE_FUNC( NAME )                                                                        \
    RT_API TELSX_##SORT telsx##NAME##Create( void );                                               \
    RT_API RT_VECTOR telsx##NAME##WORD##sVector( TELSX_##SORT hdr );                               \
    RT_API int64_t telsx##NAME##WORD##sLength( TELSX_##SORT hdr );                                 \
    RT_API RT_STRING telsx##NAME##WORD##At( TELSX_##SORT hdr, int64_t index );                     \
    RT_API void telsx##NAME##Set##WORD##At( TELSX_##SORT *hdr, int64_t index, RT_STRING ELEMENT ); \
    RT_API void telsx##NAME##Del##WORD##At( TELSX_##SORT *hdr, int64_t index );                    \
    RT_API void telsx##NAME##Prepend##WORD( TELSX_##SORT *hdr, RT_STRING ELEMENT );                \
    RT_API void telsx##NAME##Append##WORD( TELSX_##SORT *hdr, RT_STRING ELEMENT );                 \
    RT_API void telsx##NAME##Insert##WORD( TELSX_##SORT *hdr, int64_t index, RT_STRING ELEMENT );  \
    RT_API void telsx##NAME##Clear##WORD##s( TELSX_##SORT *hdr );                                  \
    RT_API void telsx##NAME##Set##WORD##sVector( TELSX_##SORT *hdr, RT_VECTOR vec );

#endif
