/* Reply-To header: where a party wants to be called back (RFC 3261, 20.31).
 *
 *     Reply-To = "Reply-To" HCOLON ( name-addr / addr-spec ) *( SEMI generic-param )  ; RFC 3261
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_REPLY_TO_H
#define TELSX_TELSX_HEADER_REPLY_TO_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderReplyTo, HEADER_REPLY_TO )
TELSX_FREE_FUNC( HeaderReplyTo )

/* A header with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_HEADER_REPLY_TO telsxHeaderReplyToCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxHeaderReplyToIri( TELSX_HEADER_REPLY_TO hdr );
RT_API void telsxHeaderReplyToSetIri( TELSX_HEADER_REPLY_TO *hdr, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxHeaderReplyToDisplayName( TELSX_HEADER_REPLY_TO hdr );
RT_API RT_BOOL telsxHeaderReplyToHasDisplayName( TELSX_HEADER_REPLY_TO hdr );
RT_API void telsxHeaderReplyToSetDisplayName( TELSX_HEADER_REPLY_TO *hdr, RT_STRING displayName );
RT_API void telsxHeaderReplyToDelDisplayName( TELSX_HEADER_REPLY_TO *hdr );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderReplyToGenericParams( TELSX_HEADER_REPLY_TO hdr );
RT_API void telsxHeaderReplyToSetGenericParams( TELSX_HEADER_REPLY_TO *hdr,
                                                TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
