/* Contact header: where a party can be reached (RFC 3261, 20.10).
 *
 *     Contact = ( "Contact" / "m" ) HCOLON ( STAR / ( contact-param *( COMMA contact-param ) ) )
 *
 * A list of values of telsx_contact.h, or the star, which stands for all contacts. The star takes no part when two headers
 * are compared. */
#ifndef TELSX_TELSX_HEADER_CONTACT_H
#define TELSX_TELSX_HEADER_CONTACT_H

#include "telsx/telsx_contact.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderContact, HEADER_CONTACT )
TELSX_FREE_FUNC( HeaderContact )
TELSX_LIST_OF_VALUES( HeaderContact, HEADER_CONTACT, Contact, CONTACT )

/* A header without values, not in star form. */
RT_API TELSX_HEADER_CONTACT telsxHeaderContactCreate( void );

/* Whether the header is the star. The star has no values: Set empties the list in either case, and every function that
 * adds a value ends the star form. */
RT_API RT_BOOL telsxHeaderContactIsStarForm( TELSX_HEADER_CONTACT hdr );
RT_API void telsxHeaderContactSetStarForm( TELSX_HEADER_CONTACT *hdr, RT_BOOL starForm );

/* Empties the list and ends the star form. */
RT_API void telsxHeaderContactClear( TELSX_HEADER_CONTACT *hdr );

RT_END

#endif
