/* Refer-To header: whom a party is asked to contact (RFC 3515, 2.1).
 *
 *     Refer-To = ( "Refer-To" / "r" ) HCOLON ( name-addr / addr-spec ) *( SEMI generic-param )  ; RFC 3515
 *
 * If a bare address is followed by text that is not a list of parameters, the whole is read again as one address,
 * semicolons included. Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_REFER_TO_H
#define TELSX_TELSX_HEADER_REFER_TO_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderReferTo, HEADER_REFER_TO )
TELSX_FREE_FUNC( HeaderReferTo )

/* A header with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_HEADER_REFER_TO telsxHeaderReferToCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxHeaderReferToIri( TELSX_HEADER_REFER_TO hdr );
RT_API void telsxHeaderReferToSetIri( TELSX_HEADER_REFER_TO *hdr, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxHeaderReferToDisplayName( TELSX_HEADER_REFER_TO hdr );
RT_API RT_BOOL telsxHeaderReferToHasDisplayName( TELSX_HEADER_REFER_TO hdr );
RT_API void telsxHeaderReferToSetDisplayName( TELSX_HEADER_REFER_TO *hdr, RT_STRING displayName );
RT_API void telsxHeaderReferToDelDisplayName( TELSX_HEADER_REFER_TO *hdr );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderReferToGenericParams( TELSX_HEADER_REFER_TO hdr );
RT_API void telsxHeaderReferToSetGenericParams( TELSX_HEADER_REFER_TO *hdr,
                                                TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
