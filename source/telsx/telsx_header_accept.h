/* Accept header: which bodies a party understands (RFC 3261, 20.1).
 *
 *     Accept = "Accept" HCOLON [ accept-range *( COMMA accept-range ) ]
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_accept.h); each is
 * written on a line of its own. Two headers compare by these texts. A raw header without lines is bad text;
 * one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_ACCEPT_H
#define TELSX_TELSX_HEADER_ACCEPT_H

#include "telsx/telsx_accept.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderAccept, HEADER_ACCEPT )
TELSX_FREE_FUNC( HeaderAccept )

/* A header without values. */
RT_API TELSX_HEADER_ACCEPT telsxHeaderAcceptCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderAcceptAcceptsLength( TELSX_HEADER_ACCEPT hdr );
RT_API TELSX_ACCEPT telsxHeaderAcceptTryDecodeAcceptAt( TELSX_HEADER_ACCEPT hdr, int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderAcceptSetAcceptAt( TELSX_HEADER_ACCEPT *hdr, int64_t index, TELSX_ACCEPT accept );
RT_API void telsxHeaderAcceptDelAcceptAt( TELSX_HEADER_ACCEPT *hdr, int64_t index );
RT_API void telsxHeaderAcceptPrependAccept( TELSX_HEADER_ACCEPT *hdr, TELSX_ACCEPT accept );
RT_API void telsxHeaderAcceptAppendAccept( TELSX_HEADER_ACCEPT *hdr, TELSX_ACCEPT accept );
RT_API void telsxHeaderAcceptInsertAccept( TELSX_HEADER_ACCEPT *hdr, int64_t index, TELSX_ACCEPT accept );
RT_API void telsxHeaderAcceptClearAccepts( TELSX_HEADER_ACCEPT *hdr );

RT_END

#endif
