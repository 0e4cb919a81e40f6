/* Via header: the hops that a message has taken (RFC 3261, 20.42).
 *
 *     Via = ( "Via" / "v" ) HCOLON via-parm *( COMMA via-parm )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_via.h), but for the first,
 * which is read with the list; each is written on a line of its own. Two headers compare by these texts. A raw header without lines is an empty
 * list. */
#ifndef TELSX_TELSX_HEADER_VIA_H
#define TELSX_TELSX_HEADER_VIA_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_via.h"

RT_BEGIN

TELSX_HEADER( HeaderVia, HEADER_VIA )
TELSX_FREE_FUNC( HeaderVia )

/* A header without values. */
RT_API TELSX_HEADER_VIA telsxHeaderViaCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderViaViasLength( TELSX_HEADER_VIA hdr );
RT_API TELSX_VIA telsxHeaderViaTryDecodeViaAt( TELSX_HEADER_VIA hdr, int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderViaSetViaAt( TELSX_HEADER_VIA *hdr, int64_t index, TELSX_VIA via );
RT_API void telsxHeaderViaDelViaAt( TELSX_HEADER_VIA *hdr, int64_t index );
RT_API void telsxHeaderViaPrependVia( TELSX_HEADER_VIA *hdr, TELSX_VIA via );
RT_API void telsxHeaderViaAppendVia( TELSX_HEADER_VIA *hdr, TELSX_VIA via );
RT_API void telsxHeaderViaInsertVia( TELSX_HEADER_VIA *hdr, int64_t index, TELSX_VIA via );
RT_API void telsxHeaderViaClearVias( TELSX_HEADER_VIA *hdr );

RT_END

#endif
