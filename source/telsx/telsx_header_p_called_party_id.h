/* P-Called-Party-Id header: which address was called (RFC 3455, 5.2).
 *
 *     P-Called-Party-ID = "P-Called-Party-ID" HCOLON called-pty-id-spec  ; RFC 3455
 *     called-pty-id-spec = name-addr *( SEMI cpid-param )  ; RFC 3455
 *
 * An address without brackets is read too.
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_P_CALLED_PARTY_ID_H
#define TELSX_TELSX_HEADER_P_CALLED_PARTY_ID_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderPCalledPartyId, HEADER_P_CALLED_PARTY_ID )
TELSX_FREE_FUNC( HeaderPCalledPartyId )

/* A header with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_HEADER_P_CALLED_PARTY_ID telsxHeaderPCalledPartyIdCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxHeaderPCalledPartyIdIri( TELSX_HEADER_P_CALLED_PARTY_ID hdr );
RT_API void telsxHeaderPCalledPartyIdSetIri( TELSX_HEADER_P_CALLED_PARTY_ID *hdr, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxHeaderPCalledPartyIdDisplayName( TELSX_HEADER_P_CALLED_PARTY_ID hdr );
RT_API RT_BOOL telsxHeaderPCalledPartyIdHasDisplayName( TELSX_HEADER_P_CALLED_PARTY_ID hdr );
RT_API void telsxHeaderPCalledPartyIdSetDisplayName( TELSX_HEADER_P_CALLED_PARTY_ID *hdr,
                                                     RT_STRING displayName );
RT_API void telsxHeaderPCalledPartyIdDelDisplayName( TELSX_HEADER_P_CALLED_PARTY_ID *hdr );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderPCalledPartyIdGenericParams( TELSX_HEADER_P_CALLED_PARTY_ID hdr );
RT_API void telsxHeaderPCalledPartyIdSetGenericParams( TELSX_HEADER_P_CALLED_PARTY_ID *hdr,
                                                       TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
