/* In-Reply-To header: the calls that a call answers (RFC 3261, 20.21).
 *
 *     In-Reply-To = "In-Reply-To" HCOLON callid *( COMMA callid )
 *
 * A set of call ids, in the order in which they came. Their case counts. All stand on one line when the
 * header is written; an empty set is written without a line. */
#ifndef TELSX_TELSX_HEADER_IN_REPLY_TO_H
#define TELSX_TELSX_HEADER_IN_REPLY_TO_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderInReplyTo, HEADER_IN_REPLY_TO )
TELSX_FREE_FUNC( HeaderInReplyTo )

/* A header with an empty set. */
RT_API TELSX_HEADER_IN_REPLY_TO telsxHeaderInReplyToCreate( void );

/* The call ids: their number, the one at the index, which must be valid, and a new vector of all. */
RT_API int64_t telsxHeaderInReplyToCallIdsLength( TELSX_HEADER_IN_REPLY_TO hdr );
RT_API RT_STRING telsxHeaderInReplyToCallIdAt( TELSX_HEADER_IN_REPLY_TO hdr, int64_t index );
RT_API RT_VECTOR telsxHeaderInReplyToCallIdsVector( TELSX_HEADER_IN_REPLY_TO hdr );

/* Whether the element is there; adding it; taking it out, which changes nothing if it is absent. They
 * abort unless telsxCallIdOk. */
RT_API RT_BOOL telsxHeaderInReplyToHasCallId( TELSX_HEADER_IN_REPLY_TO hdr, RT_STRING element );
RT_API void telsxHeaderInReplyToSetCallId( TELSX_HEADER_IN_REPLY_TO *hdr, RT_STRING element );
RT_API void telsxHeaderInReplyToDelCallId( TELSX_HEADER_IN_REPLY_TO *hdr, RT_STRING element );

/* The set emptied, and filled anew with the texts of a vector's elements: null aborts, and so does a text
 * that is not Ok. */
RT_API void telsxHeaderInReplyToClearCallIds( TELSX_HEADER_IN_REPLY_TO *hdr );
RT_API void telsxHeaderInReplyToSetCallIdsVector( TELSX_HEADER_IN_REPLY_TO *hdr, RT_VECTOR vec );

RT_END

#endif
