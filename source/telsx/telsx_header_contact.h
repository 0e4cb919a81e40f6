/* Contact header: where a party can be reached (RFC 3261, 20.10).
 *
 *     Contact = ( "Contact" / "m" ) HCOLON ( STAR / ( contact-param *( COMMA contact-param ) ) )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_contact.h); each is
 * written on a line of its own. Two headers compare by these texts, not by the star form. A raw header
 * without lines is bad text; one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_CONTACT_H
#define TELSX_TELSX_HEADER_CONTACT_H

#include "telsx/telsx_contact.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderContact, HEADER_CONTACT )
TELSX_FREE_FUNC( HeaderContact )

/* A header without values, not in star form. */
RT_API TELSX_HEADER_CONTACT telsxHeaderContactCreate( void );

/* Whether the header is the star, which stands for all contacts and goes with no value. Set empties the
 * list in either case; every function that adds a value ends the star form, and so does Clear. */
RT_API RT_BOOL telsxHeaderContactIsStarForm( TELSX_HEADER_CONTACT hdr );
RT_API void telsxHeaderContactSetStarForm( TELSX_HEADER_CONTACT *hdr, RT_BOOL starForm );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderContactContactsLength( TELSX_HEADER_CONTACT hdr );
RT_API TELSX_CONTACT telsxHeaderContactTryDecodeContactAt( TELSX_HEADER_CONTACT hdr, int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderContactSetContactAt( TELSX_HEADER_CONTACT *hdr, int64_t index, TELSX_CONTACT contact );
RT_API void telsxHeaderContactDelContactAt( TELSX_HEADER_CONTACT *hdr, int64_t index );
RT_API void telsxHeaderContactPrependContact( TELSX_HEADER_CONTACT *hdr, TELSX_CONTACT contact );
RT_API void telsxHeaderContactAppendContact( TELSX_HEADER_CONTACT *hdr, TELSX_CONTACT contact );
RT_API void telsxHeaderContactInsertContact( TELSX_HEADER_CONTACT *hdr, int64_t index,
                                             TELSX_CONTACT contact );
RT_API void telsxHeaderContactClear( TELSX_HEADER_CONTACT *hdr );

RT_END

#endif
