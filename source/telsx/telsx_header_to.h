/* To header: whom a request is for (RFC 3261, 20.39).
 *
 *     To = ( "To" / "t" ) HCOLON ( name-addr / addr-spec ) *( SEMI to-param )  ; RFC 3261
 *     to-param = tag-param / epid-param / generic-param
 *     tag-param = "tag" EQUAL token
 *     epid-param = "epid" EQUAL 1*16( token character )
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_TO_H
#define TELSX_TELSX_HEADER_TO_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderTo, HEADER_TO )
TELSX_FREE_FUNC( HeaderTo )

/* A header with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_HEADER_TO telsxHeaderToCreate( RT_STRING iri );

/* A header with everything in the given From header, its tag included. Aborts for null. */
typedef struct TELSX_HEADER_FROM_ *TELSX_HEADER_FROM;
RT_API TELSX_HEADER_TO telsxHeaderToCreateFromHeaderFrom( TELSX_HEADER_FROM hdrFrom );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxHeaderToIri( TELSX_HEADER_TO hdr );
RT_API void telsxHeaderToSetIri( TELSX_HEADER_TO *hdr, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxHeaderToDisplayName( TELSX_HEADER_TO hdr );
RT_API RT_BOOL telsxHeaderToHasDisplayName( TELSX_HEADER_TO hdr );
RT_API void telsxHeaderToSetDisplayName( TELSX_HEADER_TO *hdr, RT_STRING displayName );
RT_API void telsxHeaderToDelDisplayName( TELSX_HEADER_TO *hdr );

/* The tag, in its original case, or null. Set aborts unless telsxTagOk. */
RT_API RT_STRING telsxHeaderToTag( TELSX_HEADER_TO hdr );
RT_API RT_BOOL telsxHeaderToHasTag( TELSX_HEADER_TO hdr );
RT_API void telsxHeaderToSetTag( TELSX_HEADER_TO *hdr, RT_STRING tag );
RT_API void telsxHeaderToDelTag( TELSX_HEADER_TO *hdr );

/* The endpoint identifier, in its original case, or null. Set aborts unless telsxEpidOk. */
RT_API RT_STRING telsxHeaderToEpid( TELSX_HEADER_TO hdr );
RT_API RT_BOOL telsxHeaderToHasEpid( TELSX_HEADER_TO hdr );
RT_API void telsxHeaderToSetEpid( TELSX_HEADER_TO *hdr, RT_STRING epid );
RT_API void telsxHeaderToDelEpid( TELSX_HEADER_TO *hdr );

/* All other parameters, never null. When the header is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderToGenericParams( TELSX_HEADER_TO hdr );
RT_API void telsxHeaderToSetGenericParams( TELSX_HEADER_TO *hdr, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
