/* From header: who sends a request (RFC 3261, 20.20).
 *
 *     From = ( "From" / "f" ) HCOLON ( name-addr / addr-spec ) *( SEMI from-param )  ; RFC 3261
 *     from-param = tag-param / epid-param / generic-param
 *     tag-param = "tag" EQUAL token
 *     epid-param = "epid" EQUAL 1*16( token character )
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_FROM_H
#define TELSX_TELSX_HEADER_FROM_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderFrom, HEADER_FROM )
TELSX_FREE_FUNC( HeaderFrom )

/* A header with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_HEADER_FROM telsxHeaderFromCreate( RT_STRING iri );

/* A header with everything in the given To header, its tag included. Aborts for null. */
typedef struct TELSX_HEADER_TO_ *TELSX_HEADER_TO;
RT_API TELSX_HEADER_FROM telsxHeaderFromCreateFromHeaderTo( TELSX_HEADER_TO hdrTo );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxHeaderFromIri( TELSX_HEADER_FROM hdr );
RT_API void telsxHeaderFromSetIri( TELSX_HEADER_FROM *hdr, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxHeaderFromDisplayName( TELSX_HEADER_FROM hdr );
RT_API RT_BOOL telsxHeaderFromHasDisplayName( TELSX_HEADER_FROM hdr );
RT_API void telsxHeaderFromSetDisplayName( TELSX_HEADER_FROM *hdr, RT_STRING displayName );
RT_API void telsxHeaderFromDelDisplayName( TELSX_HEADER_FROM *hdr );

/* The tag, in its original case, or null. Set aborts unless telsxTagOk. */
RT_API RT_STRING telsxHeaderFromTag( TELSX_HEADER_FROM hdr );
RT_API RT_BOOL telsxHeaderFromHasTag( TELSX_HEADER_FROM hdr );
RT_API void telsxHeaderFromSetTag( TELSX_HEADER_FROM *hdr, RT_STRING tag );
RT_API void telsxHeaderFromDelTag( TELSX_HEADER_FROM *hdr );

/* The endpoint identifier, in its original case, or null. Set aborts unless telsxEpidOk. */
RT_API RT_STRING telsxHeaderFromEpid( TELSX_HEADER_FROM hdr );
RT_API RT_BOOL telsxHeaderFromHasEpid( TELSX_HEADER_FROM hdr );
RT_API void telsxHeaderFromSetEpid( TELSX_HEADER_FROM *hdr, RT_STRING epid );
RT_API void telsxHeaderFromDelEpid( TELSX_HEADER_FROM *hdr );

/* All other parameters, never null. When the header is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderFromGenericParams( TELSX_HEADER_FROM hdr );
RT_API void telsxHeaderFromSetGenericParams( TELSX_HEADER_FROM *hdr, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
